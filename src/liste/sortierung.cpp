#include "liste/sortierung.hpp"

#include <algorithm>
#include <charconv>
#include <cstring>

#include "grundlagen/zahl.hpp"

namespace tonkartei {
namespace {

bool nur_ASCII(std::string_view text) {
    for (const char zeichen : text)
        if (static_cast<unsigned char>(zeichen) >= 0x80) return false;
    return true;
}

void groß_anhängen(std::string& ziel, std::string_view text) {
    const std::size_t alt = ziel.size();
    ziel.resize(alt + text.size());
    char* stelle = ziel.data() + alt;
    for (const char zeichen : text)
        *stelle++ = zeichen >= 'a' && zeichen <= 'z' ? static_cast<char>(zeichen - 'a' + 'A') : zeichen;
}

}  // namespace

void Sortier_Liste::vormerken(std::size_t zeilen, std::size_t bytes) {
    zeilen_.reserve(zeilen);
    schlüssel_.reserve(bytes);
}

void Sortier_Liste::hinzufügen(std::string_view text, long long nummer, int stellen) {
    Zeile zeile{0, schlüssel_.size(), 0, nummer};
    if (nur_ASCII(text))
        groß_anhängen(schlüssel_, text);
    else
        schlüssel_ += Sortierschlüssel(text);
    // The number belongs to the line and takes part in the order, as the last characters of its text.
    char ziffern[20];
    const auto ende = std::to_chars(ziffern, ziffern + sizeof ziffern, nummer).ptr;
    const auto anzahl = static_cast<std::size_t>(ende - ziffern);
    if (anzahl <= static_cast<std::size_t>(stellen))
        schlüssel_.append(static_cast<std::size_t>(stellen) - anzahl, '0').append(ziffern, anzahl);
    zeile.länge = schlüssel_.size() - zeile.stelle;
    for (std::size_t i = 0; i < 8; ++i) {
        const auto byte = i < zeile.länge ? static_cast<unsigned char>(schlüssel_[zeile.stelle + i]) : 0U;
        zeile.anfang = zeile.anfang << 8 | byte;
    }
    zeilen_.push_back(zeile);
}

std::vector<long long> Sortier_Liste::sortierte_Nummern() {
    const char* basis = schlüssel_.data();
    std::sort(zeilen_.begin(), zeilen_.end(), [basis](const Zeile& a, const Zeile& b) {
        if (a.anfang != b.anfang) return a.anfang < b.anfang;
        const int vergleich = std::memcmp(basis + a.stelle, basis + b.stelle, std::min(a.länge, b.länge));
        if (vergleich != 0) return vergleich < 0;
        if (a.länge != b.länge) return a.länge < b.länge;
        return a.stelle < b.stelle;  // as they came
    });
    std::vector<long long> nummern;
    nummern.reserve(zeilen_.size());
    for (const Zeile& zeile : zeilen_) nummern.push_back(zeile.nummer);
    return nummern;
}

}  // namespace tonkartei
