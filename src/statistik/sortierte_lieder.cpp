#include "statistik/sortierte_lieder.hpp"

#include <algorithm>

namespace tonkartei {
namespace {

constexpr int Nr_Stellen = 4;

}  // namespace

void Sortierte_Lieder::hinzufügen(Text Schlüssel, Long Nr) {
    Schlüssel += Zahl_mit_Nullen(Nr, Nr_Stellen);
    zeilen_.push_back(std::move(Schlüssel));
}

// Digits, points and signs alone: the order of the bytes is that of the texts.
void Sortierte_Lieder::sortieren() { std::sort(zeilen_.begin(), zeilen_.end()); }

Long Sortierte_Lieder::Nr(int zeile) const {
    return gerundet(Zahlwert(rechts(zeilen_.at(static_cast<std::size_t>(zeile)), Nr_Stellen)));
}

}  // namespace tonkartei
