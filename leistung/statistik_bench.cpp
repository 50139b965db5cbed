// Opening the statistics of a full collection, with the dates of all files, beside the plain calls that ask the files for
// their time.
#include <sys/stat.h>

#include "datenbank/einstellungen.hpp"
#include "datenbank/m3u.hpp"
#include "leistung/sammlung.hpp"
#include "leistung/speicher.hpp"
#include "leistung/verhaeltnis.hpp"
#include "playlist/playlist.hpp"
#include "probe/stumme_ansicht.hpp"
#include "statistik/statistikraum.hpp"
#include "wiedergabe/wiedergabe.hpp"

using namespace tonkartei;

int main() {
    const Sammlung sammlung;
    Speicherprobe probe;
    Stumme_Ansicht ansicht;
    Modell modell;
    Einstellungen einstellungen;
    Kanäle kanäle{probe.dateien};
    Fortschritts_Fenster fortschritt{ansicht};
    Wiedergabe wiedergabe{modell, einstellungen, probe.maschine(), kanäle, ansicht};
    const M3U m3u{modell, kanäle};
    Playlist playlist{ansicht, modell, einstellungen, probe.dateien, m3u};
    Statistikraum statistik{modell, probe.maschine(), kanäle, fortschritt, {wiedergabe.Zählung, playlist}};

    Standard_Datenbank(modell, true);
    modell.Datenbank_Verzeichnis = sammlung.Ordner();
    modell.Datenbank_offen = true;
    modell.Anzahl_Lieder = Sammlung::Anzahl;
    for (Long nr = 1; nr <= Sammlung::Anzahl; ++nr) {
        modell.Lieder[nr].Artist = "Some Band With A Name " + std::to_string(nr * 7919 % 997);
        modell.Lieder[nr].Titel = "A title of the usual length no. " + std::to_string(nr);
        modell.Lieder[nr].Anzahl = nr * 7919 % 61;
        modell.Lieder[nr].Kategorie = static_cast<Byte>(1 + nr % 6);
    }
    const auto fragen = [&] {
        std::size_t summe = 0;
        for (const std::string& pfad : sammlung.Pfade) {
            struct stat datei {};
            if (::stat(pfad.c_str(), &datei) == 0) summe += static_cast<std::size_t>(datei.st_mtim.tv_sec);
        }
        return summe;
    };
    Verhältnisse v(51);
    v.davor = [&] { statistik.fenster.entladen(); };
    const auto öffnen = [&] {
        statistik.fenster.öffnen();
        return statistik.fenster.Gehört.Lieder.Liste.Anzahl();
    };
    v.höchstens("Öffnen der Statistik mit 5000 Liedern", 1.5, "5000 Dateien nach ihrer Zeit fragen", öffnen, fragen);
    v.höchstens(
        "dasselbe mit dem Datum aller Dateien", 1.5, "5000 Dateien nach ihrer Zeit fragen",
        [&] {
            const int zeilen = öffnen();
            statistik.fenster.Tabs.wert(1);
            return zeilen + static_cast<int>(statistik.fenster.Einsortiert.Einsortiert_Grafik.linien().size());
        },
        fragen);
    return v.Ergebnis();
}
