// What the panels of the older desk look like.
#pragma once

#include "oberflaeche/farbe.hpp"

namespace tonkartei {

inline constexpr Farbe Pultgrund = RGB(50, 50, 100);

}  // namespace tonkartei
