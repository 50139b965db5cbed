// Sizes and places in twips: 15 to the pixel of an unscaled screen, 1440 to the inch.
#pragma once

namespace tonkartei {

inline constexpr int Twips_je_Pixel = 15;

struct Größe {
    int breite = 0, höhe = 0;
    bool operator==(const Größe&) const = default;
};

struct Bereich {
    int links = 0, oben = 0, breite = 0, höhe = 0;
    bool operator==(const Bereich&) const = default;
};

}  // namespace tonkartei
