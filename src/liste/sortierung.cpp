#include "liste/sortierung.hpp"

#include <algorithm>
#include <charconv>

#include "grundlagen/text.hpp"
#include "grundlagen/zahl.hpp"

namespace tonkartei {

void Sortier_Liste::vormerken(std::size_t zeilen, std::size_t bytes) {
    zeilen_.reserve(zeilen);
    schlüssel_.reserve(bytes);
}

// Most names are plain: one pass puts them in upper case where they stand, and sees whether they are.
void Sortier_Liste::Text_anhängen(std::string_view text) {
    const std::size_t alt = schlüssel_.size();
    schlüssel_.append(text);
    unsigned alle = 0;
    for (char *c = schlüssel_.data() + alt, *ende = schlüssel_.data() + schlüssel_.size(); c != ende; ++c) {
        const auto byte = static_cast<unsigned char>(*c);
        alle |= byte;
        *c = static_cast<char>(byte >= 'a' && byte <= 'z' ? byte - ('a' - 'A') : byte);
    }
    if (alle < 0x80) return;
    schlüssel_.resize(alt);
    schlüssel_ += Sortierschlüssel(text);
}

void Sortier_Liste::hinzufügen(std::string_view text, std::string_view dahinter, long long nummer, int stellen) {
    Zeile zeile{static_cast<std::uint32_t>(schlüssel_.size()), 0, nummer};
    Text_anhängen(text);
    Text_anhängen(dahinter);
    char ziffern[20];
    const auto ende = std::to_chars(ziffern, ziffern + sizeof ziffern, nummer).ptr;
    const auto anzahl = static_cast<std::size_t>(ende - ziffern);
    if (anzahl <= static_cast<std::size_t>(stellen))
        schlüssel_.append(static_cast<std::size_t>(stellen) - anzahl, '0').append(ziffern, anzahl);
    zeile.länge = static_cast<std::uint32_t>(schlüssel_.size()) - zeile.stelle;
    zeilen_.push_back(zeile);
}

std::vector<long long> Sortier_Liste::sortierte_Nummern() {
    const std::string_view alle = schlüssel_;
    std::sort(zeilen_.begin(), zeilen_.end(), [alle](const Zeile& a, const Zeile& b) {
        const int folge = alle.substr(a.stelle, a.länge).compare(alle.substr(b.stelle, b.länge));
        return folge != 0 ? folge < 0 : a.stelle < b.stelle;
    });
    std::vector<long long> nummern;
    nummern.reserve(zeilen_.size());
    for (const Zeile& zeile : zeilen_) nummern.push_back(zeile.nummer);
    return nummern;
}

}  // namespace tonkartei
