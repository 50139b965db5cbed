#include "wiedergabe/griff.hpp"

#include <cmath>

namespace tonkartei {

void Griff::drücken(const Zeitpunkt& jetzt) {
    gehalten_ = true;
    seit_ = jetzt;
}

bool Griff::loslassen(const Zeitpunkt& jetzt) {
    // A release that belongs to no press here, such as one after a box took the press over, is nothing.
    const bool klick = gehalten_ && jetzt == seit_;
    gehalten_ = false;
    return klick;
}

double Sekunde_am_Klick(int x, int breite, int maximum) {
    const float Breite = static_cast<float>(breite) / 100.0F;
    const Long Prozent = gerundet(static_cast<float>(x) / Breite);
    const float Schritt = static_cast<float>(maximum) / 100.0F;
    return std::nearbyint(Schritt * static_cast<float>(Prozent));
}

Text Spielzeit(long long Sekunden) {
    const long long s = (Sekunden < 0 ? -Sekunden : Sekunden) % 3600;
    return Zahl_mit_Nullen(s / 60, 2) + ":" + Zahl_mit_Nullen(s % 60, 2);
}

}  // namespace tonkartei
