#include "austausch/zieldatei.hpp"

#include "oberflaeche/ansicht.hpp"
#include "plattform/dateisystem.hpp"

namespace tonkartei {

Text Zieldatei_wählen(Ansicht& ansicht, Dateisystem& dateien, const Text& filter, const Text& Titel_der_Frage) {
    Dateiwahl wahl;
    wahl.speichern = true;
    wahl.filter = filter;
    Text datei = ansicht.Datei_wählen(wahl);
    if (datei.empty() || !dateien.Datei_da(datei)) return datei;
    const bool ersetzen =
        ansicht.fragen(Titel_der_Frage, "Diese Datei existiert bereits!" + Text(CRCR) + "Soll sie überschrieben werden?");
    return ersetzen ? datei : Text{};
}

}  // namespace tonkartei
