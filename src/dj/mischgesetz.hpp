// The law of the mix: each side of a crossfader keeps full level over its half of the travel and falls in a straight line to
// 0 over the other half. No curve of equal power, and no constant sum: in the middle both sides are full.
#pragma once

#include "grundlagen/zahl.hpp"

namespace tonkartei::Mischgesetz {

// Percent of side 1 (full at value 0) or 2 (full at the maximum). Rounding goes to even at the half.
Long Anteil(int Seite, int Wert, int Maximum);
// What two crossfaders leave of it, percent.
Long Produkt(Long Anteil, Long weiterer);
// What the player is told: 250 where everything is full, and not the 255 of the main window.
Long Lautstärke(Long Anteil, Long Prozent);

}  // namespace tonkartei::Mischgesetz
