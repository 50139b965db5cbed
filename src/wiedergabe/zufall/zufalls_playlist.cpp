#include "wiedergabe/zufall/zufalls_playlist.hpp"

#include <cmath>

#include "alben/album_start.hpp"
#include "datenbank/haus.hpp"
#include "liste/listenbereich.hpp"
#include "oberflaeche/ansicht.hpp"
#include "wiedergabe/zufall/zufallsliste.hpp"

namespace tonkartei {
namespace {

constexpr const char* Titel = "Random-MP3-Playlist";

}  // namespace

Zufalls_Playlist::Zufalls_Playlist(Haus& haus, Listenbereich& lieder, Album_Start& start)
    : modell_(haus.modell),
      einstellungen_(haus.einstellungen),
      rechner_(haus.plattform.Rechner),
      ansicht_(haus.ansicht),
      lieder_(lieder),
      start_(start) {}

Long Zufalls_Playlist::Menge_erfragen(int vorhanden) {
    const double menge =
        std::nearbyint(Zahlwert(ansicht_.eingeben("Wieviel Lieder sollen in die Playlist?", Titel, Zahltext(vorhanden))));
    if (menge < 1) return 0;
    if (menge <= vorhanden) return gerundet(menge);
    ansicht_.informieren(Titel, "Es sind nur " + Zahltext(vorhanden) + " Lieder in der Liste vorhanden!");
    return vorhanden;
}

void Zufalls_Playlist::erstellen() {
    Zufallsliste liste;
    for (const auto& lied : lieder_.Lieder_im_Blick()) liste.hinzufügen(modell_.Lieder[lied.Nr].Anzahl, lied.Nr);
    if (liste.leer()) return;
    liste.sortieren();
    const Long Menge = Menge_erfragen(liste.Anzahl());
    if (Menge < 1) return;
    const bool in_den_Editor = ansicht_.fragen(Titel,
                                               "Soll die Liste erst in den internen Playlist-Editor (Ja) "
                                               "oder soll die Playlist gleich mit Windamp gestartet werden (Nein)?");
    if (in_den_Editor) Playlist_leeren();
    std::vector<Long> nummern;
    for (Long i = 1; i <= Menge; ++i) {
        // The share is one of what is left.
        const int Index = liste.ziehe(einstellungen_.Random_Einstellung, rechner_.Zufallszahl());
        nummern.push_back(liste.letztes_Feld(Index));
        liste.entfernen(Index);
    }
    if (in_den_Editor)
        in_Playlist(nummern);
    else
        start_.starte_Lieder(nummern);
}

}  // namespace tonkartei
