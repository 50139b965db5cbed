// The sorted list: lines in the order in which the user sees them, as a function over lines.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "grundlagen/text.hpp"

namespace tonkartei {

// Collects lines and tells their order: without regard to case and accents, lines that are alike in that sense in the order
// of their arrival. A line is put together in place, so that a list of all songs costs no memory a line.
class Sortier_Liste {
public:
    // Room for that many lines of that many bytes.
    void vormerken(std::size_t zeilen, std::size_t bytes);
    // A line of the texts, joined, and the number, which is written with `stellen` digits (not at all when it has more). The
    // number takes part in the order, as the last characters of the line.
    void hinzufügen(std::string_view text, std::string_view dahinter, long long nummer, int stellen);
    std::size_t Anzahl() const noexcept { return zeilen_.size(); }
    // The numbers of the lines, in order.
    std::vector<long long> sortierte_Nummern();

private:
    struct Zeile {
        std::uint32_t stelle, länge;
        long long nummer;
    };
    void Text_anhängen(std::string_view text);

    std::string schlüssel_;  // the keys one behind the other
    std::vector<Zeile> zeilen_;
};

}  // namespace tonkartei
