// Colours as the settings store them: blue x 65536 + green x 256 + red.
#pragma once

#include <cstdint>

namespace tonkartei {

using Farbe = std::int32_t;

// The toolkit's own colour for the place.
inline constexpr Farbe Farbe_Standard = -1;

constexpr Farbe RGB(int rot, int grün, int blau) { return blau * 65536 + grün * 256 + rot; }

inline constexpr Farbe Farbe_Schwarz = 0;
inline constexpr Farbe Farbe_Rot = RGB(255, 0, 0);

}  // namespace tonkartei
