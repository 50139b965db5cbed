// A player's process on this machine.
#pragma once

#include "spieler/argumente.hpp"

namespace tonkartei::spieler {

// Hands the files to a running player of the class, or becomes one and serves its window until it is told to end. Throws
// std::runtime_error when there is no player then.
void ausführen(const Argumente& argumente);

}  // namespace tonkartei::spieler
