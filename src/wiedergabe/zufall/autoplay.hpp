// Autoplay: whenever the player has stopped, the next song starts.
#pragma once

#include "grundlagen/zahl.hpp"

namespace tonkartei {

class Kategoriewechsel;
class Liedstart;
class WinAmp;
class Wiedergabebereich;
struct Einstellungen;

// A stopped player is the only sign that a song is over: so the stop button starts the next one, too, and a list that the
// player plays by itself counts as one song.
class Autoplay {
public:
    Autoplay(Einstellungen& einstellungen, const WinAmp& winamp, Wiedergabebereich& bereich, Liedstart& start,
             Kategoriewechsel& wechsel);

    // The tick's part. Starts at most one song; the tick inside that start may start another one, and so on a few times.
    void Schritt();

private:
    void umgeschaltet();
    void Wechsel_umgeschaltet();
    void starten();
    void beenden();

    Einstellungen& einstellungen_;
    const WinAmp& winamp_;
    Wiedergabebereich& bereich_;
    Liedstart& start_;
    Kategoriewechsel& wechsel_;

    // Just turned on: starts a song even where no player runs yet.
    bool Autoplay_Start_ = false;
    // Ticks without a player since then. A player that appears does not reset it.
    Byte Autoplay_Fehlzähler_ = 0;
    // Starts under way, one within the other.
    int Tiefe_ = 0;
};

}  // namespace tonkartei
