// The main window's row of song buttons and the boxes of autoplay.
#pragma once

#include <functional>

#include "grundlagen/zahl.hpp"
#include "oberflaeche/anordnung.hpp"
#include "oberflaeche/elemente.hpp"

namespace tonkartei {

class Fernsteuerung;
class Spielzählung;

class Wiedergabebereich {
public:
    Wiedergabebereich(Fenster& fenster, Spielzählung& zählung);

    Knopf Lied_starten, Lied_kopieren, Lied_löschen, Zufallslied_starten, Zufalls_Playlist, add_to_Playlist;
    Kasten Autoplay, Autoplay_Random;

    // Number of the song on the chosen line of the list, 0 none.
    std::function<Long()> gewähltes_Lied;

    // The remote control's panel lies over the six song buttons, its marker beside them.
    Knoten anordnung(Fernsteuerung& fernsteuerung);

private:
    void starte_gewähltes_Lied();

    Spielzählung& zählung_;
};

}  // namespace tonkartei
