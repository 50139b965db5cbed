// Where the player of this build or installation lies.
#pragma once

#include "grundlagen/text.hpp"

namespace tonkartei {

// Beside the running program, or in the library folder of its installation; empty when it is in neither.
Text Spieler_Pfad();

}  // namespace tonkartei
