// What one player's process hands to the other of its class: WM_COPYDATA with this mark, and paths, each ended by a zero
// byte.
#pragma once

#include <cstdint>

namespace tonkartei::spieler {

inline constexpr std::uintptr_t Marke_Dateien = 0x31444B54;  // "TKD1" in memory

}  // namespace tonkartei::spieler
