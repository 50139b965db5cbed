#include "dj/striche.hpp"

#include <algorithm>

#include "oberflaeche/ansicht.hpp"

namespace tonkartei {

// More dashes are wider, so the count is found by halving instead of trying them all: a page of header lines costs a hundred
// measurements and not thousands.
int Striche_bis(const Ansicht& ansicht, int Breite, const Text& Text_dahinter, int Schrift) {
    const auto reicht = [&](int anzahl) { return ansicht.Textbreite(Striche(anzahl) + Text_dahinter, Schrift) >= Breite; };
    if (reicht(0)) return 0;
    // A font without width would never get there.
    if (ansicht.Textbreite("-", Schrift) <= 0) return 0;
    int zu_wenig = 0, genug = 64;
    while (!reicht(genug)) {
        zu_wenig = genug;
        genug *= 2;
    }
    while (genug - zu_wenig > 1) {
        const int mitte = (zu_wenig + genug) / 2;
        (reicht(mitte) ? genug : zu_wenig) = mitte;
    }
    return genug;
}

int Strich_Anzahl(const Ansicht& ansicht, int Breite, const Text& Text_dahinter, int Schrift) {
    return std::max(0, Striche_bis(ansicht, Breite, Text_dahinter, Schrift) - 1);
}

}  // namespace tonkartei
