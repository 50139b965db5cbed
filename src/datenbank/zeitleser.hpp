// Three numbers on three lines: hours, minutes, seconds of a song, or a date.
#pragma once

#include <array>

namespace tonkartei {

class Kanäle;

// The leading numbers of the next three values of channel 1. It is always that channel, whatever file the caller reads:
// with another file already open the numbers come from that one, and everything that writes the family counts on it.
std::array<double, 3> drei_Zahlen_lesen(Kanäle& kanäle);

}  // namespace tonkartei
