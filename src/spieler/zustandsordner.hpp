// Where the player keeps what it remembers.
#pragma once

#include "grundlagen/text.hpp"

namespace tonkartei::spieler {

// The user's folder for such things on this machine, made where it was missing; empty when it cannot be had.
Text Zustandsordner();

}  // namespace tonkartei::spieler
