// The statistics, put together: so far one window.
#pragma once

#include "statistik/statistik.hpp"

namespace tonkartei {

struct Statistikraum {
    Statistikraum(const Modell& modell, const Plattform& plattform, Kanäle& kanäle, Fortschritts_Fenster& fortschritt,
                  Liedziel ziel)
        : fenster(modell, plattform, kanäle, fortschritt, ziel) {}
    Statistikraum(const Statistikraum&) = delete;
    Statistikraum& operator=(const Statistikraum&) = delete;

    Statistik fenster;
};

}  // namespace tonkartei
