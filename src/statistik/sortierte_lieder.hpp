// Songs in the order of a key, as lines that sort themselves: the key, then the song's number in four digits. So songs with
// equal keys stand in the order of their numbers.
#pragma once

#include <vector>

#include "grundlagen/text.hpp"
#include "grundlagen/zahl.hpp"

namespace tonkartei {

class Sortierte_Lieder {
public:
    struct Zeile {
        Text text;
        Long Nr;  // as its last four characters tell
    };

    void vormerken(Long zeilen) { zeilen_.reserve(static_cast<std::size_t>(zeilen)); }
    void hinzufügen(Text Schlüssel, Long Nr);
    // To be called once all are there.
    void sortieren();

    const std::vector<Zeile>& zeilen() const noexcept { return zeilen_; }
    std::vector<Text> texte() const;

private:
    std::vector<Zeile> zeilen_;
};

}  // namespace tonkartei
