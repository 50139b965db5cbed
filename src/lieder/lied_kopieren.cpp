#include "lieder/lied_kopieren.hpp"

#include "lieder/dateibewegung.hpp"
#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/fortschritt.hpp"
#include "plattform/dateisystem.hpp"

namespace tonkartei {

void Lied_kopieren::ausführen(Long Nr) {
    Dateiwahl wahl;
    wahl.speichern = true;
    wahl.filter = "MP3-Datei (*.MP3)|*.MP3| Alle Dateien (*.*) |*.*";
    wahl.vorschlag = Lied_Exportname(modell_.Lieder[Nr]);
    const Text ziel = fortschritt_.ansicht().Datei_wählen(wahl);
    if (!ziel.empty()) Lied_kopieren_nach(ziel, Nr);
}

void Lied_kopieren::Lied_kopieren_nach(const Text& Ziel, Long Nr) {
    if (!Datei_kopieren(shell_, modell_.Lied_Pfad(Nr), Ziel))
        fortschritt_.ansicht().informieren("Fehler", "Ein Fehler ist beim kopieren aufgetreten!");
}

void Lied_kopieren::Lieder_kopieren(const std::vector<Long>& Nummern) {
    if (Nummern.empty()) return;
    const auto anzahl = static_cast<long long>(Nummern.size());
    if (anzahl > 1) {
        if (!fortschritt_.ansicht().fragen(
                "Lieder kopieren", "Wollen sie wirklich alle " + Zahltext(anzahl) + " Lieder in der Liste kopieren?"))
            return;
    }
    const Text ordner = fortschritt_.ansicht().Verzeichnis_wählen("Zielverzeichnis für die Kopien:");
    if (ordner.empty()) return;
    const Fortschritts_Ende ende(fortschritt_);
    fortschritt_.Text_setzen("Lieder kopieren...");
    long long erledigt = 0;
    for (const Long nr : Nummern) {
        Lied_kopieren_nach(mit_Trenner(ordner) + Lied_Exportname(modell_.Lieder[nr]), nr);
        ++erledigt;
        fortschritt_.anzeigen(Prozent(static_cast<double>(erledigt), static_cast<double>(anzahl)));
    }
}

}  // namespace tonkartei
