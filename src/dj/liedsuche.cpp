#include "dj/liedsuche.hpp"

#include <array>

namespace tonkartei {

void Liedsuche::vorbereiten() {
    namen_.clear();
    namen_.reserve(static_cast<std::size_t>(modell_.Anzahl_Lieder));
    for (Long n = 1; n <= modell_.Anzahl_Lieder; ++n) {
        const Lied& lied = modell_.Lieder[n];
        namen_.push_back(groß(getrimmt(lied.Artist) + getrimmt(lied.Titel)));
    }
}

std::vector<Long> Liedsuche::passende(const Text& Schnellsuche, const std::function<bool(int Kategorie)>& zeigt) const {
    std::array<bool, 256> gezeigt{};
    for (int k = 1; k <= Kategorien_maximal; ++k) gezeigt[static_cast<std::size_t>(k)] = zeigt(k);
    const bool alle = gezeigt[1];
    const Text gesucht = groß(getrimmt(Schnellsuche));
    std::vector<Long> nummern;
    nummern.reserve(namen_.size());
    for (Long n = 1; n <= static_cast<Long>(namen_.size()); ++n) {
        if (!alle && !gezeigt[modell_.Lieder[n].Kategorie]) continue;
        if (!gesucht.empty() && namen_[static_cast<std::size_t>(n - 1)].find(gesucht) == Text::npos) continue;
        nummern.push_back(n);
    }
    return nummern;
}

}  // namespace tonkartei
