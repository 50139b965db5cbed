#include "austausch/vergleich/datenbankvergleich.hpp"

#include "austausch/dateikopf.hpp"
#include "austausch/liedvergleich.hpp"
#include "austausch/vergleich/vergleichsdatei.hpp"
#include "austausch/vergleich/vergleichsergebnis.hpp"
#include "datenbank/version.hpp"
#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/fortschritts_ende.hpp"
#include "plattform/dateisystem.hpp"
#include "plattform/kanaele.hpp"

namespace tonkartei {
namespace {

constexpr const char* Titel_vergleichen = "Datenbank vergleichen";

const char* Meldung_von(Kopffehler fehler) {
    switch (fehler) {
        case Kopffehler::Titel: return "Dies ist keine Datei von diesem Programm!";
        case Kopffehler::Version:
            return "Diese Datei ist von einer anderen Version dieses Programms erstellt worden. "
                   "Bringen sie beide Programme auf den gleichen Versionsstand, um die Datenbanken zu vergleichen!";
        case Kopffehler::Kennung: return "Dies ist keine Datenbank-Vergleichsdatei!";
        case Kopffehler::keiner: break;
    }
    return nullptr;
}

}  // namespace

void Datenbankvergleich::Datenbank_vergleichen(Fortschritts_Fenster& fortschritt) {
    if (!modell_.Datenbank_offen) return;
    Ansicht& ansicht = fenster_.ansicht();
    ansicht.informieren(Titel_vergleichen,
                        "Bitte geben sie an, wo sich die Datenbank-Vergleichsdatei befindet, "
                        "mit der die aktuell geöffnete Datenbank verglichen werden soll.");
    Dateiwahl wahl;
    wahl.filter = Vergleichsdatei_Filter;
    wahl.muss_existieren = true;
    const Text datei = ansicht.Datei_wählen(wahl);
    if (datei.empty()) return;
    fenster_.entladen();
    int nummer = 0;
    try {
        nummer = kanäle_.öffnen_zum_Lesen(datei);
        if (const char* meldung =
                Meldung_von(Kopf_prüfen(kanäle_, nummer, modell_.Programmversion, Vergleichsdatei_Kennung))) {
            kanäle_.schließen(nummer);
            ansicht.informieren(Titel_vergleichen, meldung);
            return;
        }
        Vergleichsergebnisse ergebnisse = vergleichen(nummer, fortschritt);
        kanäle_.schließen(nummer);
        fenster_.zeigen(std::move(ergebnisse));
    } catch (const Dateifehler& fehler) {
        kanäle_.aufgeben(nummer);
        ansicht.informieren(Programmtitel, fehler.mit_Pfad(fehler.Pfad().empty() ? datei : fehler.Pfad()));
    } catch (const Laufzeitfehler& fehler) {
        // Numbers that cannot be: the file is to blame, and the collection is none the worse for it.
        kanäle_.aufgeben(nummer);
        ansicht.informieren(Programmtitel, fehler.Beschreibung() + Text(CRCR) + anzeigbar(datei));
    }
}

Vergleichsergebnisse Datenbankvergleich::vergleichen(int nummer, Fortschritts_Fenster& fortschritt) {
    const std::vector<Zeitpunkt> daten = eigene_Dateizeiten(modell_, dateien_, fortschritt, false);
    const Liedvergleich vergleich(modell_, daten);
    const Fortschritts_Ende ende(fortschritt);
    fortschritt.Text_setzen("Datenbank vergleichen...");
    Vergleichsergebnisse ergebnisse;
    datei_.lesen(nummer, [&](Long nr, Long anzahl, const Vergleichslied& lied) {
        const auto treffer = vergleich.vergleichen(lied.Artist, lied.Titel, lied.Größe, lied.Datum);
        if (treffer.Grad == 2)
            ++ergebnisse.gleiche;
        else
            (treffer.Grad == 1 ? ergebnisse.andere : ergebnisse.fehlende)
                .push_back(Vergleichszeile(nr, treffer.Nr, lied.Artist, lied.Titel));
        fortschritt.anzeigen(Prozent(nr, anzahl));
    });
    return ergebnisse;
}

}  // namespace tonkartei
