// Controls that show a player's time and are pressed to move it: what the remote control and the desks share.
#pragma once

#include "grundlagen/text.hpp"
#include "grundlagen/zahl.hpp"
#include "grundlagen/zeit.hpp"

namespace tonkartei {

// Something that is pressed and let go: what is short counts as a click. The clock tells whole seconds, and that is the
// measure: a press across a change of the second is none, however short, one of 0.9 seconds within a second is.
class Griff {
public:
    bool gehalten() const noexcept { return gehalten_; }
    void drücken(const Zeitpunkt& jetzt);
    // True for a click.
    bool loslassen(const Zeitpunkt& jetzt);

private:
    bool gehalten_ = false;
    Zeitpunkt seit_;
};

// The second that a click on a bar means, `x` in from its left end; `breite` in the same unit, above 0. Hundredths of the
// bar, then the second: both steps round, and both reckon in single precision.
double Sekunde_am_Klick(int x, int breite, int maximum);

// "nn:ss"; whole hours are dropped, and so is a sign: a player may tell any number, and the text must stay this short.
Text Spielzeit(long long Sekunden);

}  // namespace tonkartei
