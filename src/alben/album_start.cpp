#include "alben/album_start.hpp"

#include "datenbank/einstellungen.hpp"
#include "datenbank/m3u.hpp"
#include "datenbank/modell.hpp"
#include "datenbank/version.hpp"
#include "oberflaeche/ansicht.hpp"

namespace tonkartei {

Album_Start::Album_Start(Modell& modell, const Einstellungen& einstellungen, const Alben& alben, const M3U& m3u,
                         Ansicht& ansicht)
    : modell_(modell), einstellungen_(einstellungen), alben_(alben), m3u_(m3u), ansicht_(ansicht) {}

void Album_Start::starte_Album(Long Nr) {
    if (Nr < 1) return;
    const std::vector<Long> lieder = vorhandene_Lieder(alben_.eigene.Alben[Nr]);
    if (!Liste_schreiben(lieder)) return;
    if (lieder.empty())
        ansicht_.informieren("Album starten", "In der Datenbank sind keine Lieder dieses Albums vorhanden!");
    else
        starte_WinAmp_Liste(Datei());
}

void Album_Start::starte_Lieder(const std::vector<Long>& Nummern) {
    if (Liste_schreiben(Nummern)) starte_WinAmp_Liste(Datei());
}

Text Album_Start::Datei() const { return einstellungen_.WinAmp_Verzeichnis + Playlist_Datei_Name; }

bool Album_Start::Liste_schreiben(const std::vector<Long>& Nummern) {
    try {
        m3u_.schreiben(Datei(), Nummern);
        return true;
    } catch (const Dateifehler& fehler) {
        ansicht_.informieren(Programmtitel, fehler.mit_Pfad(Datei()));
        return false;
    }
}

std::vector<Long> Album_Start::vorhandene_Lieder(const Album& album) const {
    std::vector<Long> lieder;
    for (int t = 1; t <= album.Titel_Anzahl; ++t)
        if (const Long nr = Lied_von(modell_, album.Lieder[t]); nr > 0) lieder.push_back(nr);
    return lieder;
}

}  // namespace tonkartei
