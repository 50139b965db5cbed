// How often the songs were heard: the views of the list by count.
#pragma once

#include <vector>

#include "datenbank/modell.hpp"
#include "statistik/sortierte_lieder.hpp"

namespace tonkartei {

enum class Gehört_Sicht { meiste = 1, wenigste, genau };

struct Gehört_Liste {
    Sortierte_Lieder lieder;
    std::vector<Text> zeilen;  // what the user sees of each
    long long Insgesamt = 0;   // all their counts together
};

// `x`: the count that the last view asks for.
Gehört_Liste Gehört_auflisten(const Bestand& bestand, Gehört_Sicht sicht, double x);

}  // namespace tonkartei
