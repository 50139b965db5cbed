// Colours as the settings store them: blue x 65536 + green x 256 + red.
#pragma once

#include <cstdint>

namespace tonkartei {

using Farbe = std::int32_t;

// The toolkit's own colour for the place.
inline constexpr Farbe Farbe_Standard = -1;

constexpr Farbe RGB(int rot, int grün, int blau) { return blau * 65536 + grün * 256 + rot; }

// The 16 basic colours, by their numbers: 0 to 7 dark, 8 to 15 bright, each black (grey), blue, green, cyan, red, magenta,
// yellow, white.
constexpr Farbe Grundfarbe(int nummer) {
    constexpr Farbe farben[] = {0,
                                RGB(0, 0, 128),
                                RGB(0, 128, 0),
                                RGB(0, 128, 128),
                                RGB(128, 0, 0),
                                RGB(128, 0, 128),
                                RGB(128, 128, 0),
                                RGB(192, 192, 192),
                                RGB(128, 128, 128),
                                RGB(0, 0, 255),
                                RGB(0, 255, 0),
                                RGB(0, 255, 255),
                                RGB(255, 0, 0),
                                RGB(255, 0, 255),
                                RGB(255, 255, 0),
                                RGB(255, 255, 255)};
    return farben[nummer & 15];
}

inline constexpr Farbe Farbe_Schwarz = 0;
inline constexpr Farbe Farbe_Rot = RGB(255, 0, 0);

}  // namespace tonkartei
