#include "wiedergabe/zufall/zufallsliste.hpp"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <string_view>

namespace tonkartei {

Zufallsliste::Zeile Zufallsliste::Zeile_aus(std::initializer_list<long long> felder) {
    Zeile zeile{};
    auto ziel = zeile.begin();
    for (const long long wert : felder) {
        char ziffern[24];
        const auto ende = std::to_chars(std::begin(ziffern), std::end(ziffern), wert).ptr;
        const auto länge = static_cast<std::size_t>(ende - ziffern);
        if (länge > Feldbreite) continue;
        std::uint64_t feld = 0;
        for (std::size_t i = länge; i < Feldbreite; ++i) feld = feld << 8U | '0';
        for (std::size_t i = 0; i < länge; ++i) feld = feld << 8U | static_cast<unsigned char>(ziffern[i]);
        *ziel++ = feld;
    }
    return zeile;
}

void Zufallsliste::hinzufügen(Long Anzahl, Long Nr, int Titelzeile) {
    zeilen_.push_back(Zeile_aus({Anzahl, Nr, Titelzeile}));
}

void Zufallsliste::hinzufügen(Long Anzahl, Long Nr) { zeilen_.push_back(Zeile_aus({Anzahl, Nr})); }

void Zufallsliste::sortieren() { std::sort(zeilen_.begin(), zeilen_.end()); }

int Zufallsliste::ziehe(int Prozent, float R) const {
    const int anteil = Prozent * Anzahl();
    // A share above 100 can only come from a registry that was changed by hand.
    return std::min(static_cast<int>(anteil / 100.0 * R + 1.0), Anzahl());
}

Long Zufallsliste::Feldwert(int Index, std::size_t feld) const {
    char text[Feldbreite];
    std::uint64_t rest = zeilen_[static_cast<std::size_t>(Index - 1)][feld];
    for (std::size_t i = Feldbreite; i-- > 0; rest >>= 8U) text[i] = static_cast<char>(rest & 0xFFU);
    return gerundet(Zahlwert(std::string_view(text, Feldbreite)));
}

Long Zufallsliste::Nr(int Index) const { return Feldwert(Index, 1); }

Long Zufallsliste::letztes_Feld(int Index) const {
    const Zeile& zeile = zeilen_[static_cast<std::size_t>(Index - 1)];
    std::size_t letztes = Felder_maximal - 1;
    while (letztes > 0 && zeile[letztes] == 0) --letztes;
    return Feldwert(Index, letztes);
}

void Zufallsliste::entfernen(int Index) { zeilen_.erase(zeilen_.begin() + (Index - 1)); }

}  // namespace tonkartei
