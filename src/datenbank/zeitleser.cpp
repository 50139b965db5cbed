#include "datenbank/zeitleser.hpp"

#include "grundlagen/zahl.hpp"
#include "plattform/kanaele.hpp"

namespace tonkartei {

std::array<double, 3> drei_Zahlen_lesen(Kanäle& kanäle) {
    constexpr int erster_Kanal = 1;
    std::array<double, 3> zahlen{};
    for (double& zahl : zahlen) zahl = Zahlwert(kanäle.lese_Wert(erster_Kanal));
    return zahlen;
}

}  // namespace tonkartei
