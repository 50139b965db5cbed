// The older DJ desk, for the composition.
#pragma once

#include "dj/alt/dj_modus.hpp"

namespace tonkartei {

struct DJ_alt_Raum {
    DJ_alt_Raum(Haus& haus, Wiedergabe& wiedergabe) : fenster(haus, wiedergabe) {}
    DJ_alt_Raum(const DJ_alt_Raum&) = delete;
    DJ_alt_Raum& operator=(const DJ_alt_Raum&) = delete;

    DJ_Modus fenster;
};

}  // namespace tonkartei
