// The sort for pairs of arrays. It is unstable, and the order in which it leaves equal keys is seen by users: no other sort
// may take its place.
#pragma once

#include <cstddef>
#include <utility>
#include <vector>

#include "grundlagen/fehler.hpp"
#include "grundlagen/zahl.hpp"

namespace tonkartei {

// Keys and values at the positions 1 to n, moved together. Keys compare by `<`. Error 9 outside the positions.
template <class Schlüsseltyp, class Werttyp>
class Quicksort {
public:
    // n positions with start values.
    void Quicksort_Init(Long n) { paare_.assign(static_cast<std::size_t>(n < 0 ? 0 : n), {}); }
    Schlüsseltyp& Schlüssel(Long i) { return Paar(i).first; }
    Werttyp& Wert(Long i) { return Paar(i).second; }
    void Quicksort_Start() {
        if (!paare_.empty()) sortieren(1, static_cast<Long>(paare_.size()));
    }

private:
    std::pair<Schlüsseltyp, Werttyp>& Paar(Long i) {
        if (i < 1 || static_cast<std::size_t>(i) > paare_.size()) throw Laufzeitfehler(Fehler_Index);
        return paare_[static_cast<std::size_t>(i) - 1];
    }
    void sortieren(Long unten, Long oben) {
        Long i = unten, j = oben;
        const Schlüsseltyp mitte = Schlüssel(gerundet((static_cast<double>(unten) + oben) / 2));
        while (i <= j) {
            while (Schlüssel(i) < mitte) ++i;
            while (mitte < Schlüssel(j)) --j;
            if (i > j) break;
            std::swap(Paar(i), Paar(j));
            ++i;
            --j;
        }
        if (unten < j) sortieren(unten, j);
        if (i < oben) sortieren(i, oben);
    }

    std::vector<std::pair<Schlüsseltyp, Werttyp>> paare_;
};

}  // namespace tonkartei
