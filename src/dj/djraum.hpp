// The newer DJ desk, for the composition.
#pragma once

#include "dj/djmodus.hpp"

namespace tonkartei {

struct DJ_Raum {
    DJ_Raum(Haus& haus, Wiedergabe& wiedergabe, Albenraum& alben) : fenster(haus, wiedergabe, alben) {}
    DJ_Raum(const DJ_Raum&) = delete;
    DJ_Raum& operator=(const DJ_Raum&) = delete;

    DJModus fenster;
};

}  // namespace tonkartei
