#include "oberflaeche/qt/leseordnung.hpp"

#include <algorithm>
#include <tuple>

namespace tonkartei {
namespace {

using Reihe = std::vector<std::size_t>;

struct Strecke {
    int von, bis;
};

Strecke senkrecht(const QRect& r) { return {r.y(), r.y() + r.height()}; }
Strecke waagrecht(const QRect& r) { return {r.x(), r.x() + r.width()}; }

// Into the parts between which nothing lies across.
template <class Achse>
std::vector<Reihe> teilen(Reihe reihe, const std::vector<QRect>& plätze, Achse achse) {
    std::stable_sort(reihe.begin(), reihe.end(),
                     [&](std::size_t a, std::size_t b) { return achse(plätze[a]).von < achse(plätze[b]).von; });
    std::vector<Reihe> teile;
    int ende = 0;
    for (const std::size_t i : reihe) {
        const Strecke strecke = achse(plätze[i]);
        if (teile.empty() || strecke.von >= ende) {
            teile.emplace_back();
            ende = strecke.bis;
        }
        teile.back().push_back(i);
        ende = std::max(ende, strecke.bis);
    }
    return teile;
}

void ordnen(Reihe reihe, const std::vector<QRect>& plätze, Reihe& ziel) {
    auto teile = teilen(reihe, plätze, senkrecht);
    if (teile.size() == 1) teile = teilen(reihe, plätze, waagrecht);
    if (teile.size() > 1) {
        for (Reihe& teil : teile) ordnen(std::move(teil), plätze, ziel);
        return;
    }
    std::stable_sort(reihe.begin(), reihe.end(), [&](std::size_t a, std::size_t b) {
        return std::tuple(plätze[a].y(), plätze[a].x()) < std::tuple(plätze[b].y(), plätze[b].x());
    });
    ziel.insert(ziel.end(), reihe.begin(), reihe.end());
}

}  // namespace

std::vector<std::size_t> Leseordnung(const std::vector<QRect>& plätze) {
    Reihe alle(plätze.size()), ziel;
    for (std::size_t i = 0; i < alle.size(); ++i) alle[i] = i;
    ordnen(std::move(alle), plätze, ziel);
    return ziel;
}

}  // namespace tonkartei
