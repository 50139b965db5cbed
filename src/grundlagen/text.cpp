#include "grundlagen/text.hpp"

#include <array>

#include "grundlagen/codepage.hpp"

namespace tonkartei {
namespace {

// Byte position behind the first `anzahl` characters.
std::size_t Bytes_von(std::string_view text, std::size_t anzahl) {
    std::size_t stelle = 0;
    for (; anzahl > 0 && stelle < text.size(); --anzahl) nächstes_Zeichen(text, stelle);
    return stelle;
}

char groß_ASCII(char zeichen) { return zeichen >= 'a' && zeichen <= 'z' ? static_cast<char>(zeichen - 'a' + 'A') : zeichen; }

char32_t groß_Zeichen(char32_t zeichen) {
    if (zeichen < 0x80) return static_cast<char32_t>(groß_ASCII(static_cast<char>(zeichen)));
    if (zeichen >= 0xE0 && zeichen <= 0xFE && zeichen != 0xF7) return zeichen - 0x20;
    switch (zeichen) {
        case 0xFF: return 0x178;
        case 0x153: return 0x152;
        case 0x161: return 0x160;
        case 0x17E: return 0x17D;
        default: return zeichen;
    }
}

// Base letters of the upper-case letters from U+00C0 to U+00DE.
constexpr std::array<const char*, 31> Grundbuchstaben = {"A", "A",        "A", "A", "A", "A", "AE", "C", "E", "E", "E",
                                                         "E", "I",        "I", "I", "I", "D", "N",  "O", "O", "O", "O",
                                                         "O", "\xC3\x97", "O", "U", "U", "U", "U",  "Y", "TH"};

}  // namespace

Text Zeichen(int Code) {
    Text text;
    const auto code = static_cast<unsigned char>(Code);
    anhängen(text, Seite_zu_Unicode(code));
    return text;
}

std::size_t Zeichenzahl(std::string_view text) {
    std::size_t anzahl = 0;
    for (std::size_t i = 0; i < text.size(); ++anzahl) nächstes_Zeichen(text, i);
    return anzahl;
}

Text links(std::string_view text, std::size_t anzahl) { return Text(text.substr(0, Bytes_von(text, anzahl))); }

Text rechts(std::string_view text, std::size_t anzahl) {
    const std::size_t alle = Zeichenzahl(text);
    return alle <= anzahl ? Text(text) : Text(text.substr(Bytes_von(text, alle - anzahl)));
}

Text ab(std::string_view text, std::size_t von) { return Text(text.substr(Bytes_von(text, von > 0 ? von - 1 : 0))); }

Text getrimmt(std::string_view text) {
    const auto anfang = text.find_first_not_of(' ');
    if (anfang == std::string_view::npos) return {};
    return Text(text.substr(anfang, text.find_last_not_of(' ') - anfang + 1));
}

Text ersetzt(std::string_view text, std::string_view was, std::string_view durch) {
    Text ergebnis;
    std::size_t stelle = 0;
    for (auto fund = text.find(was); !was.empty() && fund != std::string_view::npos; fund = text.find(was, stelle)) {
        ergebnis.append(text, stelle, fund - stelle).append(durch);
        stelle = fund + was.size();
    }
    return ergebnis.append(text, stelle);
}

Text Zeichen_entfernen(std::string_view text, std::string_view was) {
    Text rest(text);
    if (was.empty()) return rest;
    // A removal can only make a new occurrence around itself, so the search need not start over.
    for (auto fund = rest.find(was); fund != Text::npos;
         fund = rest.find(was, fund >= was.size() ? fund - was.size() + 1 : 0))
        rest.erase(fund, was.size());
    return rest;
}

Text und_verdoppelt(std::string_view text) { return ersetzt(text, "&", "&&"); }

Text groß(std::string_view text) {
    Text ergebnis;
    ergebnis.reserve(text.size());
    if (nur_ASCII(text)) {
        for (const char zeichen : text) ergebnis.push_back(groß_ASCII(zeichen));
        return ergebnis;
    }
    for (std::size_t i = 0; i < text.size();) {
        const std::size_t anfang = i;
        const auto zeichen = nächstes_Zeichen(text, i);
        if (zeichen)
            anhängen(ergebnis, groß_Zeichen(*zeichen));
        else
            ergebnis.push_back(text[anfang]);
    }
    return ergebnis;
}

Text Sortierschlüssel(std::string_view text) {
    Text ergebnis;
    ergebnis.reserve(text.size());
    for (std::size_t i = 0; i < text.size();) {
        if (static_cast<unsigned char>(text[i]) < 0x80) {
            ergebnis.push_back(groß_ASCII(text[i++]));
            continue;
        }
        const std::size_t anfang = i;
        const auto gelesen = nächstes_Zeichen(text, i);
        if (!gelesen) {
            ergebnis.push_back(text[anfang]);
            continue;
        }
        const char32_t zeichen = groß_Zeichen(*gelesen);
        if (zeichen >= 0xC0 && zeichen <= 0xDE)
            ergebnis += Grundbuchstaben[zeichen - 0xC0];
        else if (zeichen == 0xDF)
            ergebnis += "SS";
        else if (zeichen == 0x152)
            ergebnis += "OE";
        else if (zeichen == 0x160)
            ergebnis += "S";
        else if (zeichen == 0x17D)
            ergebnis += "Z";
        else if (zeichen == 0x178)
            ergebnis += "Y";
        else
            anhängen(ergebnis, zeichen);
    }
    return ergebnis;
}

Text anzeigbar(std::string_view text) {
    Text ergebnis;
    ergebnis.reserve(text.size());
    for (std::size_t i = 0; i < text.size();) {
        const std::size_t anfang = i;
        if (nächstes_Zeichen(text, i))
            ergebnis.append(text, anfang, i - anfang);
        else
            anhängen(ergebnis, 0xFFFD);
    }
    return ergebnis;
}

}  // namespace tonkartei
