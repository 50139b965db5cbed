#include "wiedergabe/zufallsliste.hpp"

#include <algorithm>

namespace tonkartei {
namespace {

constexpr int Feldbreite = 8;

}  // namespace

void Zufallsliste::hinzufügen(Long Anzahl, Long Nr, int Titelzeile) {
    hinzufügen(Anzahl, Nr);
    zeilen_.back() += Zahl_mit_Nullen(Titelzeile, Feldbreite);
}

void Zufallsliste::hinzufügen(Long Anzahl, Long Nr) {
    std::string& neu = zeilen_.emplace_back();
    neu.reserve(3 * Feldbreite);
    neu += Zahl_mit_Nullen(Anzahl, Feldbreite);
    neu += Zahl_mit_Nullen(Nr, Feldbreite);
}

void Zufallsliste::sortieren() { std::sort(zeilen_.begin(), zeilen_.end()); }

int Zufallsliste::ziehe(int Prozent, float R) const {
    const int anteil = Prozent * Anzahl();
    // A share above 100 can only come from a registry that was changed by hand.
    return std::min(static_cast<int>(anteil / 100.0 * R + 1.0), Anzahl());
}

Long Zufallsliste::Nr(int Index) const {
    const std::string& text = zeile(Index);
    return text.size() > Feldbreite ? gerundet(Zahlwert(std::string_view(text).substr(Feldbreite, Feldbreite))) : 0;
}

Long Zufallsliste::letztes_Feld(int Index) const {
    const std::string& text = zeile(Index);
    const std::size_t länge = std::min<std::size_t>(text.size(), Feldbreite);
    return gerundet(Zahlwert(std::string_view(text).substr(text.size() - länge)));
}

void Zufallsliste::entfernen(int Index) { zeilen_.erase(zeilen_.begin() + (Index - 1)); }

}  // namespace tonkartei
