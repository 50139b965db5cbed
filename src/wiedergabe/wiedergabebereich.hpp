// The main window's row of song buttons and the boxes of autoplay.
#pragma once

#include "oberflaeche/anordnung.hpp"
#include "oberflaeche/elemente.hpp"

namespace tonkartei {

class Fernsteuerung;

// Only the controls: what they do is connected by the parts that do it.
class Wiedergabebereich {
public:
    explicit Wiedergabebereich(Fenster& fenster);

    Knopf Lied_starten, Lied_kopieren, Lied_löschen, Zufallslied_starten, Zufalls_Playlist, add_to_Playlist;
    Kasten Autoplay, Autoplay_Random;
    // The automatic change of category, offered while autoplay is on, and how many songs lie between two changes.
    Kasten auto_Kat_Wechsel;
    Knopf auto_Kat_Wechsel_Setup;

    // The remote control's panel lies over the six song buttons, its marker beside them.
    Knoten anordnung(Fernsteuerung& fernsteuerung);
};

}  // namespace tonkartei
