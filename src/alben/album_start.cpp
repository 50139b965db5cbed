#include "alben/album_start.hpp"

#include "datenbank/einstellungen.hpp"
#include "datenbank/modell.hpp"
#include "datenbank/version.hpp"
#include "oberflaeche/ansicht.hpp"
#include "plattform/kanaele.hpp"

namespace tonkartei {

Album_Start::Album_Start(Modell& modell, const Einstellungen& einstellungen, const Alben& alben, Kanäle& kanäle,
                         Ansicht& ansicht)
    : modell_(modell), einstellungen_(einstellungen), alben_(alben), kanäle_(kanäle), ansicht_(ansicht) {}

void Album_Start::starte_Album(Long Nr) {
    if (Nr < 1) return;
    const Text datei = einstellungen_.WinAmp_Verzeichnis + Playlist_Datei_Name;
    int lieder = 0;
    try {
        lieder = Liste_schreiben(datei, alben_.eigene.Alben[Nr]);
    } catch (const Dateifehler& fehler) {
        modell_.Meldung = fehler.Beschreibung() + Text(CRCR) + anzeigbar(datei);
        ansicht_.informieren(Programmtitel, modell_.Meldung);
        return;
    }
    if (lieder == 0)
        ansicht_.informieren("Album starten", "In der Datenbank sind keine Lieder dieses Albums vorhanden!");
    else
        starte_WinAmp_Liste(datei);
}

// How many songs the list has.
int Album_Start::Liste_schreiben(const Text& datei, const Album& album) {
    int lieder = 0;
    const int nummer = kanäle_.öffnen_zum_Schreiben(datei);
    try {
        for (int t = 1; t <= album.Titel_Anzahl; ++t) {
            const Long nr = Lied_von(modell_, album.Lieder[t]);
            if (nr < 1) continue;
            kanäle_.schreibe_Rohzeile(nummer, modell_.Lied_Pfad(nr));
            ++lieder;
        }
        kanäle_.schließen(nummer);
    } catch (...) {
        kanäle_.aufgeben(nummer);
        throw;
    }
    return lieder;
}

}  // namespace tonkartei
