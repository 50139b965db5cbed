#include "dj/mischgesetz.hpp"

namespace tonkartei::Mischgesetz {

Long Anteil(int Seite, int Wert, int Maximum) {
    const double m = Maximum, v = Wert;
    const bool untere_Hälfte = m / 2 >= v;
    if (Seite == 1) return untere_Hälfte ? 100 : gerundet(100 - gerundet(v - m / 2) / (m / 200));
    return untere_Hälfte ? gerundet(v / (m / 200)) : 100;
}

Long Produkt(Long Anteil, Long weiterer) { return gerundet(static_cast<double>(Anteil) * weiterer / 100); }

Long Lautstärke(Long Anteil, Long Prozent) { return gerundet(static_cast<double>(Anteil * Prozent) / 100 * 2.5); }

}  // namespace tonkartei::Mischgesetz
