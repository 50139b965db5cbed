#include "plattform/dateisystem.hpp"

namespace tonkartei {

Text mit_Trenner(const Text& pfad) { return pfad.empty() || pfad.back() == Trenner ? pfad : pfad + Trenner; }

Text ohne_Trenner(Text pfad) {
    while (pfad.size() > 1 && pfad.back() == Trenner) pfad.pop_back();
    return pfad;
}

Text Dateiname_von(const Text& pfad) { return pfad.substr(pfad.rfind(Trenner) + 1); }

Text Ordner_von(const Text& pfad) { return pfad.substr(0, pfad.rfind(Trenner) + 1); }

bool ist_absolut(const Text& pfad) { return !pfad.empty() && pfad.front() == Trenner; }

}  // namespace tonkartei
