// The title panels of both players.
#pragma once

#include "dj/alt/dj_titel.hpp"
#include "dj/alt/spielerpaar.hpp"

namespace tonkartei {

struct Titelpaar {
    Titelpaar(Ansicht& ansicht, Spielerpaar& spieler, Rechner& rechner)
        : eins(ansicht, 1, spieler.Fenster(1), rechner), zwei(ansicht, 2, spieler.Fenster(2), rechner) {}

    DJ_Titel eins, zwei;
    DJ_Titel& operator[](int n) { return n == 1 ? eins : zwei; }
};

}  // namespace tonkartei
