// The sorted list: lines in the order in which the user sees them, as a function over lines.
#pragma once

#include <cstddef>
#include <vector>

#include "grundlagen/text.hpp"

namespace tonkartei {

// Collects lines and tells their order: without regard to case and accents, lines that are alike in that sense in the order
// of their arrival. A line is put together in place, so that a list of all songs costs no memory a line.
class Sortier_Liste {
public:
    // Room for that many lines of that many bytes.
    void vormerken(std::size_t zeilen, std::size_t bytes);
    // A line of the text and the number, which is written with `stellen` digits (not at all when it has more).
    void hinzufügen(std::string_view text, long long nummer, int stellen);
    std::size_t Anzahl() const noexcept { return zeilen_.size(); }
    // The numbers of the lines, in order.
    std::vector<long long> sortierte_Nummern();

private:
    struct Zeile {
        unsigned long long anfang;  // first eight bytes of the key, the first one highest: decides most comparisons
        std::size_t stelle;
        std::size_t länge;
        long long nummer;
    };
    std::string schlüssel_;  // the keys one behind the other
    std::vector<Zeile> zeilen_;
};

}  // namespace tonkartei
