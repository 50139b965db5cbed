// The law of the older desk's mix: one crossfader from 0 to 200, and a point on it past which a waiting player starts.
#pragma once

#include "grundlagen/zahl.hpp"

namespace tonkartei::Mischgesetz_alt {

inline constexpr int Maximum = 200, Mitte = 100;

// What the player is told, 0 to 255, of what its slider says: full up to the middle, then in a straight line down to 0.
// Player 1 is full at 0, player 2 at the maximum.
Long Lautstärke(int Player, Long Regler, int Crossfade);

// The share of the crossfader, from either end, in which a start is not yet due. From a point of 42 on there is no place
// left between the two.
double Startpunkt(int POF_Punkt);
bool im_Startbereich(int Crossfade, double Startpunkt);

// Of the 16 basic colours: how far from the middle.
int Mittenfarbe(int Crossfade, bool Autofade);

}  // namespace tonkartei::Mischgesetz_alt
