#include "dj/striche.hpp"

#include <algorithm>

#include "oberflaeche/ansicht.hpp"

namespace tonkartei {

// More dashes are wider, and all alike: the count is guessed from a row of them, and only the last step is tried out.
// Measuring a text is dear, and a page of header lines would need thousands of tries.
int Striche_bis(const Ansicht& ansicht, int Breite, const Text& Text_dahinter, int Schrift) {
    constexpr int Probe = 64;
    const int fehlt = Breite - ansicht.Textbreite(Text_dahinter, Schrift);
    const int je_Probe = ansicht.Textbreite(Striche(Probe), Schrift);
    // A font without width would never get there.
    if (fehlt <= 0 || je_Probe <= 0) return 0;
    const auto reicht = [&](int anzahl) { return ansicht.Textbreite(Striche(anzahl) + Text_dahinter, Schrift) >= Breite; };
    int anzahl = static_cast<int>(static_cast<long long>(fehlt) * Probe / je_Probe);
    while (!reicht(anzahl)) ++anzahl;
    while (anzahl > 0 && reicht(anzahl - 1)) --anzahl;
    return anzahl;
}

int Strich_Anzahl(const Ansicht& ansicht, int Breite, const Text& Text_dahinter, int Schrift) {
    return std::max(0, Striche_bis(ansicht, Breite, Text_dahinter, Schrift) - 1);
}

}  // namespace tonkartei
