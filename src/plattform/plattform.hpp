// The machine as one bundle. The pieces are owned by whoever built the bundle (entry point or test) and outlive it.
#pragma once

#include "plattform/dateisystem.hpp"
#include "plattform/fenstersystem.hpp"
#include "plattform/rechner.hpp"
#include "plattform/registrierung.hpp"
#include "plattform/shell.hpp"

namespace tonkartei {

struct Plattform {
    tonkartei::Dateisystem& Dateisystem;
    tonkartei::Registrierung& Registrierung;
    tonkartei::Fenstersystem& Fenstersystem;
    tonkartei::Shell& Shell;
    tonkartei::Rechner& Rechner;
};

}  // namespace tonkartei
