// Players on the one desktop that there is.
#pragma once

#include "testordner.hpp"

namespace tonkartei {

inline constexpr bool eigener_Schreibtisch = false;

// How many there were.
int Spieler_töten(const Testordner& ordner, const std::string& klasse);
// The player of this build in a folder of the user's.
void Spieler_hinlegen(const std::string& ordner);

}  // namespace tonkartei
