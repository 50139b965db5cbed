#include "austausch/vergleich/datenbankvergleich.hpp"

#include "austausch/dateikopf.hpp"
#include "austausch/liedvergleich.hpp"
#include "austausch/vergleich/vergleichsdatei.hpp"
#include "austausch/vergleich/vergleichsergebnis.hpp"
#include "datenbank/haus.hpp"
#include "datenbank/version.hpp"
#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/fortschritt.hpp"

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

void Datenbankvergleich::Datenbank_vergleichen() {
    if (!haus_.modell.Datenbank_offen) return;
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
        nummer = haus_.kanäle.öffnen_zum_Lesen(datei);
        if (const char* meldung =
                Meldung_von(Kopf_prüfen(haus_.kanäle, nummer, haus_.modell.Programmversion, Vergleichsdatei_Kennung))) {
            haus_.kanäle.schließen(nummer);
            ansicht.informieren(Titel_vergleichen, meldung);
            return;
        }
        Vergleichsergebnisse ergebnisse = vergleichen(nummer);
        haus_.kanäle.schließen(nummer);
        fenster_.zeigen(std::move(ergebnisse));
    } catch (const Dateifehler& fehler) {
        haus_.kanäle.aufgeben(nummer);
        ansicht.informieren(Programmtitel, fehler.mit_Pfad(fehler.Pfad().empty() ? datei : fehler.Pfad()));
    } catch (const Laufzeitfehler& fehler) {
        // Numbers that cannot be: the file is to blame, and the collection is none the worse for it.
        haus_.kanäle.aufgeben(nummer);
        ansicht.informieren(Programmtitel, fehler.Beschreibung() + Text(CRCR) + anzeigbar(datei));
    }
}

Vergleichsergebnisse Datenbankvergleich::vergleichen(int nummer) {
    const std::vector<Zeitpunkt> daten =
        eigene_Dateizeiten(haus_.modell, haus_.plattform.Dateisystem, haus_.fortschritt, false);
    const Liedvergleich vergleich(haus_.modell, daten);
    const Fortschritts_Ende ende(haus_.fortschritt);
    haus_.fortschritt.Text_setzen("Datenbank vergleichen...");
    Vergleichsergebnisse ergebnisse;
    datei_.lesen(nummer, [&](Long nr, Long anzahl, const Vergleichslied& lied) {
        const auto treffer = vergleich.vergleichen(lied.Artist, lied.Titel, lied.Größe, lied.Datum);
        if (treffer.Grad == 2)
            ++ergebnisse.gleiche;
        else
            (treffer.Grad == 1 ? ergebnisse.andere : ergebnisse.fehlende)
                .push_back(Vergleichszeile(nr, treffer.Nr, lied.Artist, lied.Titel));
        haus_.fortschritt.anzeigen(Prozent(nr, anzahl));
    });
    return ergebnisse;
}

}  // namespace tonkartei
