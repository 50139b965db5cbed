#include "bediener/json.hpp"

#include "grundlagen/codepage.hpp"

namespace tonkartei::Json {
namespace {

Text Fluchtzeichen(unsigned code) {
    static constexpr std::string_view Ziffern = "0123456789abcdef";
    Text ergebnis = "\\u";
    for (int schub = 12; schub >= 0; schub -= 4) ergebnis += Ziffern[(code >> static_cast<unsigned>(schub)) & 15U];
    return ergebnis;
}

std::optional<unsigned> vier_Ziffern(std::string_view zeile, std::size_t stelle) {
    if (stelle + 4 > zeile.size()) return std::nullopt;
    unsigned code = 0;
    for (std::size_t i = stelle; i < stelle + 4; ++i) {
        const char c = zeile[i];
        unsigned ziffer = 0;
        if (c >= '0' && c <= '9')
            ziffer = static_cast<unsigned>(c - '0');
        else if (c >= 'a' && c <= 'f')
            ziffer = static_cast<unsigned>(c - 'a') + 10;
        else if (c >= 'A' && c <= 'F')
            ziffer = static_cast<unsigned>(c - 'A') + 10;
        else
            return std::nullopt;
        code = code * 16 + ziffer;
    }
    return code;
}

// The four digits at `stelle`, and those of the second half of a pair; moves behind them.
bool Code_lesen(std::string_view zeile, std::size_t& stelle, Text& ziel) {
    const auto erster = vier_Ziffern(zeile, stelle);
    if (!erster) return false;
    stelle += 4;
    if (*erster >= 0xDC80 && *erster <= 0xDCFF) {
        ziel += static_cast<char>(*erster - 0xDC00);
        return true;
    }
    if (*erster >= 0xD800 && *erster <= 0xDBFF) {
        if (zeile.substr(stelle, 2) != "\\u") return false;
        const auto zweiter = vier_Ziffern(zeile, stelle + 2);
        if (!zweiter || *zweiter < 0xDC00 || *zweiter > 0xDFFF) return false;
        stelle += 6;
        anhängen(ziel, 0x10000 + ((*erster - 0xD800) << 10U) + (*zweiter - 0xDC00));
        return true;
    }
    if (*erster >= 0xDC00 && *erster <= 0xDFFF) return false;
    anhängen(ziel, *erster);
    return true;
}

}  // namespace

Text Zeichenkette(std::string_view text) {
    Text ergebnis = "\"";
    std::size_t stelle = 0;
    while (stelle < text.size()) {
        const std::size_t anfang = stelle;
        const auto zeichen = nächstes_Zeichen(text, stelle);
        if (!zeichen)
            ergebnis += Fluchtzeichen(0xDC00U + static_cast<unsigned char>(text[anfang]));
        else if (*zeichen == U'"' || *zeichen == U'\\')
            (ergebnis += '\\') += text[anfang];
        else if (*zeichen == U'\n')
            ergebnis += "\\n";
        else if (*zeichen < 32 || *zeichen == 127)
            ergebnis += Fluchtzeichen(static_cast<unsigned>(*zeichen));
        else
            ergebnis += text.substr(anfang, stelle - anfang);
    }
    return ergebnis + '"';
}

std::optional<Text> Zeichenkette_lesen(std::string_view zeile, std::size_t& stelle) {
    static constexpr std::string_view Kürzel = "\"\\/bfnrt", Bedeutung = "\"\\/\b\f\n\r\t";
    Text ergebnis;
    std::size_t i = stelle + 1;
    while (i < zeile.size()) {
        const char c = zeile[i++];
        if (c == '"') {
            stelle = i;
            return ergebnis;
        }
        if (c != '\\') {
            ergebnis += c;
            continue;
        }
        if (i == zeile.size()) return std::nullopt;
        const char flucht = zeile[i++];
        if (flucht == 'u') {
            if (!Code_lesen(zeile, i, ergebnis)) return std::nullopt;
        } else {
            const std::size_t welches = Kürzel.find(flucht);
            if (welches == std::string_view::npos) return std::nullopt;
            ergebnis += Bedeutung[welches];
        }
    }
    return std::nullopt;
}

Text Liste(const std::vector<Text>& teile) {
    Text ergebnis = "[";
    for (const Text& teil : teile) {
        if (ergebnis.size() > 1) ergebnis += ',';
        ergebnis += teil;
    }
    return ergebnis + ']';
}

Text Textliste(const std::vector<Text>& texte) {
    std::vector<Text> teile;
    teile.reserve(texte.size());
    for (const Text& text : texte) teile.push_back(Zeichenkette(text));
    return Liste(teile);
}

Objekt& Objekt::roh(std::string_view name, std::string_view wert) {
    if (!innen_.empty()) innen_ += ',';
    innen_ += Zeichenkette(name);
    innen_ += ':';
    innen_ += wert;
    return *this;
}

}  // namespace tonkartei::Json
