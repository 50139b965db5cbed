#include "austausch/sicherung/backup_datenbank.hpp"

#include "austausch/sicherung/portionsdatei.hpp"
#include "datenbank/modell.hpp"
#include "lieder/hinzufuegen/auszugsdatenbank.hpp"
#include "oberflaeche/ansicht.hpp"
#include "plattform/dateisystem.hpp"

namespace tonkartei {

void Backup_Datenbank::Menü_Backup_anlegen() {
    if (!modell_.Datenbank_offen) return;
    ansicht_.informieren("Backup-Datenbank erstellen", "Bitte geben sie an, wo sich die Backup-Portionsdatei befindet.");
    Dateiwahl wahl;
    wahl.filter = "Backup-Portionsdatei (*.MBP)|*.MBP| Alle Dateien (*.*) |*.*";
    wahl.muss_existieren = true;
    Backup_Datenbank_anlegen(ansicht_.Datei_wählen(wahl));
}

void Backup_Datenbank::Backup_Datenbank_anlegen(const Text& Datei) {
    if (Datei.empty() || !dateien_.Datei_da(Datei)) return;
    auszug_.anlegen(datei_.lesen(Datei));
}

}  // namespace tonkartei
