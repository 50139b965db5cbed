// A list of songs, and what can be done with the chosen one.
#pragma once

#include <vector>

#include "grundlagen/ereignis.hpp"
#include "oberflaeche/anordnung.hpp"
#include "oberflaeche/listen.hpp"
#include "statistik/sortierte_lieder.hpp"

namespace tonkartei {

class Abspieler;
class Playlist;

// Where a chosen song can go.
struct Liedziel {
    Abspieler& spieler;
    Playlist& playlist;
};

class Liedauswahl {
public:
    // The controls' names begin with `vorsilbe`.
    Liedauswahl(Fenster& fenster, const Text& vorsilbe, Liedziel ziel);

    Listenfeld Liste;
    Knopf Lied_starten, Lied_in_Playlist;

    // The visible line of each song, in the same order.
    void zeigen(Sortierte_Lieder lieder, std::vector<Text> zeilen);
    const Sortierte_Lieder& lieder() const noexcept { return lieder_; }
    // Other lines are on show.
    Ereignis<> gezeigt;

    Knoten Listenknoten();
    Knoten Knopfknoten();

private:
    // Number of the chosen song; 0 none.
    Long gewähltes_Lied() const;
    void starten();
    void in_Playlist();

    Liedziel ziel_;
    Sortierte_Lieder lieder_;
};

}  // namespace tonkartei
