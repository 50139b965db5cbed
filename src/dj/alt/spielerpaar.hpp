// The two players of the older desk, whose hidden windows lie side by side.
#pragma once

#include "dj/spielerprozess.hpp"

namespace tonkartei {

class Spielerpaar {
public:
    Spielerpaar(Haus& haus, Wiedergabe& wiedergabe);

    // Player 1 or 2. False when it does not run afterwards.
    bool starte_WinAmp(int Player, const Text& Datei);
    // A new song, paused and silent; false when another load, or the end of the desk, came in between.
    bool starte(int Player, const Text& Datei);
    // Both; none is started until the next opening.
    void beenden();
    void öffnen() { offen_ = true; }

    Spielerfenster& Fenster(int Player) { return Prozess(Player).Fenster; }

private:
    Spielerprozess& Prozess(int Player) { return Player == 1 ? eins_ : zwei_; }

    Fenstersystem& system_;
    Spielerprozess eins_, zwei_;
    bool offen_ = false;
};

}  // namespace tonkartei
