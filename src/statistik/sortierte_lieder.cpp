#include "statistik/sortierte_lieder.hpp"

#include <algorithm>

namespace tonkartei {
namespace {

constexpr int Nr_Stellen = 4;

}  // namespace

void Sortierte_Lieder::hinzufügen(Text Schlüssel, Long Nr) {
    Schlüssel += Zahl_mit_Nullen(Nr, Nr_Stellen);
    zeilen_.push_back({std::move(Schlüssel), Nr});
}

// Digits, points and signs alone: the order of the bytes is that of the texts.
void Sortierte_Lieder::sortieren() {
    std::sort(zeilen_.begin(), zeilen_.end(), [](const Zeile& a, const Zeile& b) { return a.text < b.text; });
}

std::vector<Text> Sortierte_Lieder::texte() const {
    std::vector<Text> texte;
    texte.reserve(zeilen_.size());
    for (const Zeile& zeile : zeilen_) texte.push_back(zeile.text);
    return texte;
}

}  // namespace tonkartei
