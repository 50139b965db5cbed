// The statistics, put together: so far one window.
#pragma once

#include "statistik/statistik.hpp"
#include "wiedergabe/wiedergabe.hpp"

namespace tonkartei {

struct Statistikraum {
    Statistikraum(Haus& haus, Wiedergabe& wiedergabe, Playlist& playlist)
        : fenster(haus, {wiedergabe.Abspieler, playlist}) {}
    Statistikraum(const Statistikraum&) = delete;
    Statistikraum& operator=(const Statistikraum&) = delete;

    Statistik fenster;
};

}  // namespace tonkartei
