// The heartbeat of the playing side: twice a second it looks at the player.
#pragma once

#include "grundlagen/ereignis.hpp"
#include "oberflaeche/zeitgeber.hpp"

namespace tonkartei {

class WinAmp;

class Takt {
public:
    Takt(Ansicht& ansicht, WinAmp& winamp);

    // From the opening of the main window to its closing.
    void starten() { Timer.stellen(Intervall, true); }
    void anhalten() { Timer.stellen(Intervall, false); }

    // One tick; also called directly after a start of the player. May be entered again from within itself, since the search
    // for the player's window lets events run.
    void Timer_Timer();

    // In this order, after the look at the player: the choice of the next song, then the remote control's display.
    Ereignis<> Autoplay_Schritt;
    Ereignis<> Anzeige_Schritt;

    Zeitgeber Timer;

private:
    static constexpr int Intervall = 500;  // milliseconds
    WinAmp& winamp_;
};

}  // namespace tonkartei
