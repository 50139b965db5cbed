#include "statistik/liedauswahl.hpp"

#include "playlist/playlist.hpp"
#include "wiedergabe/abspieler.hpp"

namespace tonkartei {

Liedauswahl::Liedauswahl(Fenster& fenster, const Text& vorsilbe, Liedziel ziel)
    : Liste(fenster, vorsilbe + "Liste"),
      Lied_starten(fenster, vorsilbe + "Lied_starten", "Lied &starten"),
      Lied_in_Playlist(fenster, vorsilbe + "Lied_in_Playlist", "in &Playlist"),
      ziel_(ziel) {
    Lied_starten.tooltip("Das gewählte Lied mit WinAmp spielen.");
    Lied_in_Playlist.tooltip("Das gewählte Lied in die Playlist aufnehmen.");
    Liste.Vorlesename = "Lieder";
    Liste.Doppelklick.verbinden([this] { starten(); });
    Lied_starten.Klick.verbinden([this] { starten(); });
    Lied_in_Playlist.Klick.verbinden([this] { in_Playlist(); });
}

void Liedauswahl::zeigen(Sortierte_Lieder lieder, std::vector<Text> zeilen) {
    lieder_ = std::move(lieder);
    Liste.setzen(std::move(zeilen));
    gezeigt();
}

Knoten Liedauswahl::Listenknoten() { return Knoten(Liste).zeichen(52).dehnen(1, 1); }

Knoten Liedauswahl::Knopfknoten() {
    return Zeile({Knoten(Lied_starten).zeichen(14), Knoten(Lied_in_Playlist).zeichen(14), Feder()});
}

Long Liedauswahl::gewähltes_Lied() const {
    return Liste.gewählt() < 0 ? 0 : lieder_.zeilen().at(static_cast<std::size_t>(Liste.gewählt())).Nr;
}

// The lines stay as they are, whatever the start counts.
void Liedauswahl::starten() {
    if (const Long nr = gewähltes_Lied(); nr > 0) ziel_.spieler.starte_Lied(nr);
}

void Liedauswahl::in_Playlist() {
    const Long nr = gewähltes_Lied();
    if (nr == 0) return;
    ziel_.playlist.zeigen_falls_nötig();
    ziel_.playlist.add_Lied(nr, true);
}

}  // namespace tonkartei
