// Opening the statistics of a full collection, with the dates of all files, beside the plain calls that ask the files for
// their time.
#include <sys/stat.h>

#include "alben/albenraum.hpp"
#include "datenbank/datenbankraum.hpp"
#include "kategorien/kategorienbereich.hpp"
#include "kategorien/kategorienraum.hpp"
#include "leistung/sammlung.hpp"
#include "leistung/speicher.hpp"
#include "leistung/verhaeltnis.hpp"
#include "liste/listenbereich.hpp"
#include "playlist/playlist.hpp"
#include "probe/stumme_ansicht.hpp"
#include "statistik/statistikraum.hpp"

using namespace tonkartei;

int main() {
    const Sammlung sammlung;
    Speicherprobe probe;
    Stumme_Ansicht ansicht;
    Haus haus{probe.maschine(), ansicht};
    Datenbankraum datenbank{haus};
    Albenraum alben{datenbank};
    Kategorienraum kategoriefenster{haus};
    Wiedergabe wiedergabe{haus};
    Fenster haupt{ansicht, "Tonkartei", "Tonkartei"};
    Kategorienbereich kategorien{haupt, haus.modell, haus.einstellungen, kategoriefenster.bearbeiten};
    Listenbereich lieder{haupt, haus, alben, kategorien};
    Playlist playlist{haus, datenbank.m3u, lieder, wiedergabe.Starter};
    Statistikraum statistik{haus, wiedergabe, playlist};

    Standard_Datenbank(haus.modell, true);
    haus.modell.Datenbank_Verzeichnis = sammlung.Ordner();
    haus.modell.Datenbank_offen = true;
    haus.modell.Anzahl_Lieder = Sammlung::Anzahl;
    for (Long nr = 1; nr <= Sammlung::Anzahl; ++nr) {
        Lied& lied = haus.modell.Lieder[nr];
        lied.Artist = "Some Band With A Name " + std::to_string(nr * 7919 % 997);
        lied.Titel = "A title of the usual length no. " + std::to_string(nr);
        lied.Anzahl = nr * 7919 % 61;
        lied.Kategorie = static_cast<Byte>(1 + nr % 6);
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
