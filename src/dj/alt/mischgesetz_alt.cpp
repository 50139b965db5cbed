#include "dj/alt/mischgesetz_alt.hpp"

#include <cstdlib>

namespace tonkartei::Mischgesetz_alt {

Long Lautstärke(int Player, Long Regler, int Crossfade) {
    const int anteil = Player == 1 ? Maximum - Crossfade : Crossfade;
    return anteil < Mitte ? gerundet(Regler / 100.0 * anteil) : Regler;
}

double Startpunkt(int POF_Punkt) { return 4.0 / (50 - POF_Punkt); }

bool im_Startbereich(int Crossfade, double Startpunkt) {
    return Crossfade > Maximum * Startpunkt && Crossfade < Maximum - Maximum * Startpunkt;
}

int Mittenfarbe(int Crossfade, bool Autofade) {
    if (Autofade) return 14;
    const int abstand = std::abs(Crossfade - Mitte);
    return abstand == 0 ? 2 : abstand < 10 ? 6 : 12;
}

}  // namespace tonkartei::Mischgesetz_alt
