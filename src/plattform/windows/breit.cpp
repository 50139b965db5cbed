#include "plattform/windows/breit.hpp"

#include <cstdint>

#include "grundlagen/codepage.hpp"

namespace tonkartei {
namespace {

static_assert(sizeof(wchar_t) == 2);

constexpr bool hohe_Hälfte(char32_t einheit) { return einheit >= 0xD800 && einheit < 0xDC00; }
constexpr bool tiefe_Hälfte(char32_t einheit) { return einheit >= 0xDC00 && einheit < 0xE000; }

// One code point from byte `stelle` on, halves of pairs among them.
char32_t lies(std::string_view text, std::size_t& stelle) {
    const auto erstes = static_cast<unsigned char>(text[stelle++]);
    const std::size_t folgen = erstes < 0x80   ? 0
                               : erstes < 0xC2 ? 4
                               : erstes < 0xE0 ? 1
                               : erstes < 0xF0 ? 2
                               : erstes < 0xF5 ? 3
                                               : 4;
    if (folgen == 0) return erstes;
    if (folgen == 4 || text.size() - stelle < folgen) return Seite_zu_Unicode(erstes);
    char32_t zeichen = erstes & (0x3FU >> folgen);
    for (std::size_t i = 0; i < folgen; ++i) {
        const auto byte = static_cast<unsigned char>(text[stelle + i]);
        if ((byte & 0xC0U) != 0x80) return Seite_zu_Unicode(erstes);
        zeichen = (zeichen << 6U) | (byte & 0x3FU);
    }
    constexpr char32_t kleinste[] = {0, 0x80, 0x800, 0x10000};
    if (zeichen < kleinste[folgen] || zeichen > 0x10FFFF) return Seite_zu_Unicode(erstes);
    stelle += folgen;
    return zeichen;
}

void schreib(Text& text, char32_t zeichen) {
    const auto folge = [&](unsigned schub) { text.push_back(static_cast<char>(0x80U | ((zeichen >> schub) & 0x3FU))); };
    if (zeichen < 0x80) {
        text.push_back(static_cast<char>(zeichen));
    } else if (zeichen < 0x800) {
        text.push_back(static_cast<char>(0xC0U | (zeichen >> 6U)));
        folge(0);
    } else if (zeichen < 0x10000) {
        text.push_back(static_cast<char>(0xE0U | (zeichen >> 12U)));
        folge(6);
        folge(0);
    } else {
        text.push_back(static_cast<char>(0xF0U | (zeichen >> 18U)));
        folge(12);
        folge(6);
        folge(0);
    }
}

}  // namespace

std::wstring breit(std::string_view text) {
    std::wstring ergebnis;
    ergebnis.reserve(text.size());
    for (std::size_t stelle = 0; stelle < text.size();) {
        const char32_t zeichen = lies(text, stelle);
        if (zeichen < 0x10000) {
            ergebnis.push_back(static_cast<wchar_t>(zeichen));
        } else {
            ergebnis.push_back(static_cast<wchar_t>(0xD800 + ((zeichen - 0x10000) >> 10U)));
            ergebnis.push_back(static_cast<wchar_t>(0xDC00 + ((zeichen - 0x10000) & 0x3FFU)));
        }
    }
    return ergebnis;
}

Text schmal(std::wstring_view text) {
    Text ergebnis;
    ergebnis.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t zeichen = static_cast<char16_t>(text[i]);
        if (hohe_Hälfte(zeichen) && i + 1 < text.size() && tiefe_Hälfte(static_cast<char16_t>(text[i + 1])))
            zeichen = 0x10000 + ((zeichen - 0xD800) << 10U) + (static_cast<char16_t>(text[++i]) - 0xDC00U);
        schreib(ergebnis, zeichen);
    }
    return ergebnis;
}

}  // namespace tonkartei
