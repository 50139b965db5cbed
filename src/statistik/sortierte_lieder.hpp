// Songs in the order of a key, as lines that sort themselves: the key, then the song's number in four digits. So songs with
// equal keys stand in the order of their numbers.
#pragma once

#include <vector>

#include "grundlagen/text.hpp"
#include "grundlagen/zahl.hpp"

namespace tonkartei {

class Sortierte_Lieder {
public:
    void vormerken(Long zeilen) { zeilen_.reserve(static_cast<std::size_t>(zeilen)); }
    void hinzufügen(Text Schlüssel, Long Nr);
    // To be called once all are there.
    void sortieren();

    const std::vector<Text>& zeilen() const noexcept { return zeilen_; }
    // Number of the song on a line, from 0.
    Long Nr(int zeile) const;

private:
    std::vector<Text> zeilen_;
};

}  // namespace tonkartei
