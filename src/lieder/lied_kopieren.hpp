// Copies of songs, under their readable names.
#pragma once

#include <vector>

#include "datenbank/modell.hpp"
#include "oberflaeche/fortschritt.hpp"
#include "plattform/shell.hpp"

namespace tonkartei {

class Lied_kopieren {
public:
    Lied_kopieren(Modell& modell, Shell& shell, Fortschritts_Fenster& fortschritt)
        : modell_(modell), shell_(shell), fortschritt_(fortschritt) {}

    // Asks where to.
    void ausführen(Long Nr);
    // To a path; a failure is told.
    void Lied_kopieren_nach(const Text& Ziel, Long Nr);
    // All of them to one folder, which is asked for.
    void Lieder_kopieren(const std::vector<Long>& Nummern);

private:
    Modell& modell_;
    Shell& shell_;
    Fortschritts_Fenster& fortschritt_;
};

}  // namespace tonkartei
