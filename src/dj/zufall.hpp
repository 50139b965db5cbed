// The even draw of the desks. The choice by how seldom a song was heard, which the main window makes, does not reach them.
#pragma once

#include "grundlagen/zahl.hpp"
#include "plattform/rechner.hpp"

namespace tonkartei {

// A number from Von to Bis, all alike likely; seeds the generator from the clock.
inline Long Zufall(Rechner& rechner, Long Von, Long Bis) {
    rechner.Zufall_säen();
    return static_cast<Long>(static_cast<double>(rechner.Zufallszahl()) * (Bis - Von + 1)) + Von;
}

}  // namespace tonkartei
