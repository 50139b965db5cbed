#include "liste/sortierung.hpp"

#include <algorithm>
#include <array>
#include <charconv>

#include "grundlagen/text.hpp"
#include "grundlagen/zahl.hpp"

namespace tonkartei {
namespace {

constexpr std::size_t Teillänge = 8;

// Upper case of every ASCII byte.
constexpr auto Großbuchstaben = [] {
    std::array<char, 256> tabelle{};
    for (int i = 0; i < 256; ++i)
        tabelle[static_cast<std::size_t>(i)] = static_cast<char>(i >= 'a' && i <= 'z' ? i - 32 : i);
    return tabelle;
}();

}  // namespace

void Sortier_Liste::vormerken(std::size_t zeilen, std::size_t bytes) {
    zeilen_.reserve(zeilen);
    schlüssel_.reserve(bytes);
}

void Sortier_Liste::Text_anhängen(std::string_view text) {
    const std::size_t alt = schlüssel_.size();
    schlüssel_.resize(alt + text.size());
    char* ziel = schlüssel_.data() + alt;
    unsigned alle = 0;
    for (const char zeichen : text) {
        const auto byte = static_cast<unsigned char>(zeichen);
        alle |= byte;
        *ziel++ = Großbuchstaben[byte];
    }
    if (alle < 0x80) return;
    schlüssel_.resize(alt);
    schlüssel_ += Sortierschlüssel(text);
}

void Sortier_Liste::hinzufügen(std::string_view text, std::string_view dahinter, long long nummer, int stellen) {
    Zeile zeile{0, static_cast<std::uint32_t>(schlüssel_.size()), 0, nummer};
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

// Bytes behind the end of a key count as 0.
std::uint64_t Sortier_Liste::Teil(const Zeile& zeile, std::size_t tiefe) const {
    const char* bytes = schlüssel_.data() + zeile.stelle + tiefe;
    const std::size_t rest = tiefe < zeile.länge ? zeile.länge - tiefe : 0;
    const auto Byte_von = [bytes](std::size_t i) { return std::uint64_t{static_cast<unsigned char>(bytes[i])}; };
    if (rest >= Teillänge)
        return Byte_von(0) << 56 | Byte_von(1) << 48 | Byte_von(2) << 40 | Byte_von(3) << 32 | Byte_von(4) << 24 |
               Byte_von(5) << 16 | Byte_von(6) << 8 | Byte_von(7);
    std::uint64_t teil = 0;
    for (std::size_t i = 0; i < Teillänge; ++i) teil = teil << 8 | (i < rest ? Byte_von(i) : 0U);
    return teil;
}

// Lines that agree up to `tiefe`: by their next eight bytes, then the runs that agree in those by the next. Names share long
// beginnings, which a comparison of whole keys would walk through again and again.
void Sortier_Liste::sortieren(std::size_t von, std::size_t bis, std::size_t tiefe) {
    const auto anfang = zeilen_.begin() + static_cast<std::ptrdiff_t>(von);
    const auto ende = zeilen_.begin() + static_cast<std::ptrdiff_t>(bis);
    std::uint32_t längste = 0;
    for (auto i = anfang; i != ende; ++i) {
        i->teil = Teil(*i, tiefe);
        längste = std::max(längste, i->länge);
    }
    if (tiefe >= längste) {
        // Alike to the end; a key that is longer by zeros alone comes later, and else the one that came first.
        std::sort(anfang, ende, [](const Zeile& a, const Zeile& b) {
            return a.länge != b.länge ? a.länge < b.länge : a.stelle < b.stelle;
        });
        return;
    }
    std::sort(anfang, ende, [](const Zeile& a, const Zeile& b) { return a.teil < b.teil; });
    for (std::size_t i = von; i < bis;) {
        std::size_t j = i + 1;
        while (j < bis && zeilen_[j].teil == zeilen_[i].teil) ++j;
        if (j - i > 1) sortieren(i, j, tiefe + Teillänge);
        i = j;
    }
}

std::vector<long long> Sortier_Liste::sortierte_Nummern() {
    if (zeilen_.size() > 1) sortieren(0, zeilen_.size(), 0);
    std::vector<long long> nummern;
    nummern.reserve(zeilen_.size());
    for (const Zeile& zeile : zeilen_) nummern.push_back(zeile.nummer);
    return nummern;
}

}  // namespace tonkartei
