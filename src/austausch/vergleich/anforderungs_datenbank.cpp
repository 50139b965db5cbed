#include "austausch/vergleich/anforderungs_datenbank.hpp"

#include "austausch/vergleich/anforderungsdatei.hpp"
#include "datenbank/modell.hpp"
#include "lieder/hinzufuegen/auszugsdatenbank.hpp"
#include "oberflaeche/ansicht.hpp"

namespace tonkartei {

void Anforderungs_Datenbank::Anforderungs_Datenbank_erstellen() {
    if (!modell_.Datenbank_offen) return;
    ansicht_.informieren("Anforderungs-Datenbank erstellen", "Bitte geben sie an, wo sich die Anforderungsdatei befindet.");
    Dateiwahl wahl;
    wahl.filter = Anforderungsdatei_Filter;
    wahl.muss_existieren = true;
    const Text datei = ansicht_.Datei_wählen(wahl);
    if (!datei.empty()) auszug_.anlegen(datei_.lesen(datei));
}

}  // namespace tonkartei
