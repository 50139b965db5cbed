// How often songs were heard, changed by hand.
#pragma once

#include <vector>

#include "datenbank/modell.hpp"

namespace tonkartei {

class Ansicht;

class Lied_Anzahl {
public:
    Lied_Anzahl(Modell& modell, Ansicht& ansicht) : modell_(modell), ansicht_(ansicht) {}

    // Each asks first; true when the songs have changed. A number beyond 32 bits is an overflow (6), and changes nothing.
    bool ändern(Long Nr);
    // To a fixed value, or by a value with its sign, but not below 0.
    bool alle_ändern(const std::vector<Long>& Nummern);
    bool alle_auf_Null(const std::vector<Long>& Nummern);

private:
    Modell& modell_;
    Ansicht& ansicht_;
};

}  // namespace tonkartei
