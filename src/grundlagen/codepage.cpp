#include "grundlagen/codepage.hpp"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace tonkartei {
namespace {

// Codes 0x80 to 0x9F; 0x81, 0x8D, 0x8F, 0x90 and 0x9D have no character and keep their number.
constexpr std::array<char16_t, 32> oberes_Feld = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                  0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                  0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                  0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

bool ist_Folge(unsigned char byte) { return (byte & 0xC0) == 0x80; }

}  // namespace

char32_t Seite_zu_Unicode(unsigned char code) {
    if (code >= 0x80 && code <= 0x9F) return oberes_Feld[code - 0x80U];
    return code;
}

std::optional<unsigned char> Unicode_zu_Seite(char32_t zeichen) {
    if (zeichen < 0x80 || (zeichen >= 0xA0 && zeichen <= 0xFF)) return static_cast<unsigned char>(zeichen);
    for (std::size_t i = 0; i < oberes_Feld.size(); ++i)
        if (oberes_Feld[i] == zeichen) return static_cast<unsigned char>(0x80 + i);
    return std::nullopt;
}

void anhängen(Text& text, char32_t zeichen) {
    const auto byte = [&](char32_t wert) { text.push_back(static_cast<char>(static_cast<unsigned char>(wert))); };
    if (zeichen < 0x80) {
        byte(zeichen);
    } else if (zeichen < 0x800) {
        byte(0xC0 | (zeichen >> 6));
        byte(0x80 | (zeichen & 0x3F));
    } else if (zeichen < 0x10000) {
        byte(0xE0 | (zeichen >> 12));
        byte(0x80 | ((zeichen >> 6) & 0x3F));
        byte(0x80 | (zeichen & 0x3F));
    } else {
        byte(0xF0 | (zeichen >> 18));
        byte(0x80 | ((zeichen >> 12) & 0x3F));
        byte(0x80 | ((zeichen >> 6) & 0x3F));
        byte(0x80 | (zeichen & 0x3F));
    }
}

std::optional<char32_t> nächstes_Zeichen(std::string_view text, std::size_t& stelle) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char erstes = byte(stelle);
    if (erstes < 0x80) {
        ++stelle;
        return erstes;
    }
    std::size_t folgen = 0;
    char32_t wert = 0;
    char32_t kleinstes = 0;
    if (erstes >= 0xC2 && erstes <= 0xDF) {
        folgen = 1, wert = erstes & 0x1FU, kleinstes = 0x80;
    } else if ((erstes & 0xF0) == 0xE0) {
        folgen = 2, wert = erstes & 0x0FU, kleinstes = 0x800;
    } else if (erstes >= 0xF0 && erstes <= 0xF4) {
        folgen = 3, wert = erstes & 0x07U, kleinstes = 0x10000;
    }
    bool gültig = folgen > 0 && stelle + folgen < text.size();
    for (std::size_t i = 1; gültig && i <= folgen; ++i) {
        gültig = ist_Folge(byte(stelle + i));
        wert = (wert << 6) | (byte(stelle + i) & 0x3FU);
    }
    gültig = gültig && wert >= kleinstes && wert <= 0x10FFFF && (wert < 0xD800 || wert > 0xDFFF);
    if (!gültig) {
        ++stelle;
        return std::nullopt;
    }
    stelle += folgen + 1;
    return wert;
}

bool nur_ASCII(std::string_view text) {
    // Eight at a time: every line of every file comes by here.
    std::uint64_t alle = 0;
    while (text.size() >= sizeof alle) {
        std::uint64_t acht;
        std::memcpy(&acht, text.data(), sizeof acht);
        alle |= acht;
        text.remove_prefix(sizeof acht);
    }
    for (const char zeichen : text) alle |= static_cast<unsigned char>(zeichen);
    return (alle & 0x8080808080808080U) == 0;
}

Text aus_1252(std::string_view bytes) {
    if (nur_ASCII(bytes)) return Text(bytes);
    Text text;
    text.reserve(bytes.size());
    for (const char zeichen : bytes) {
        const auto code = static_cast<unsigned char>(zeichen);
        if (code < 0x80)
            text.push_back(zeichen);
        else
            anhängen(text, Seite_zu_Unicode(code));
    }
    return text;
}

char* nach_1252(std::string_view text, char* ziel) {
    if (nur_ASCII(text)) return std::copy(text.begin(), text.end(), ziel);
    for (std::size_t i = 0; i < text.size();) {
        const auto byte = static_cast<unsigned char>(text[i]);
        const auto folge = static_cast<unsigned char>(i + 1 < text.size() ? text[i + 1] : 0);
        if (byte < 0x80) {
            *ziel++ = text[i++];
        } else if (byte == 0xC3 && ist_Folge(folge)) {
            // The letters of the page's upper quarter, which are nearly all that occur, by their bits.
            *ziel++ = static_cast<char>(folge | 0x40U);
            i += 2;
        } else {
            const auto zeichen = nächstes_Zeichen(text, i);
            const auto code = zeichen ? Unicode_zu_Seite(*zeichen) : std::nullopt;
            *ziel++ = code ? static_cast<char>(*code) : '?';
        }
    }
    return ziel;
}

std::string nach_1252(std::string_view text) {
    std::string bytes(text.size(), '\0');
    bytes.resize(static_cast<std::size_t>(nach_1252(text, bytes.data()) - bytes.data()));
    return bytes;
}

Text auf_Seite(std::string_view text) { return nur_ASCII(text) ? Text(text) : aus_1252(nach_1252(text)); }

}  // namespace tonkartei
