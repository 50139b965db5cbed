#include "plattform/linux/regdatei.hpp"

#include <algorithm>
#include <charconv>
#include <optional>

#include "plattform/registrierung.hpp"

namespace tonkartei {
namespace {

constexpr char Stufe = '\x01';
constexpr std::string_view Wurzel = "HKEY_CURRENT_USER";
constexpr std::string_view Kopf = "Windows Registry Editor Version 5.00";

std::string_view ohne_Ränder(std::string_view text) {
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) text.remove_prefix(1);
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t')) text.remove_suffix(1);
    return text;
}

bool beginnt_mit(std::string_view text, std::string_view anfang) {
    return text.size() >= anfang.size() && groß(text.substr(0, anfang.size())) == groß(anfang);
}

// A text in quotes at the beginning of `rest`, which moves on behind it.
std::optional<Text> Zitat(std::string_view& rest) {
    if (rest.empty() || rest.front() != '"') return std::nullopt;
    Text text;
    for (std::size_t i = 1; i < rest.size(); ++i) {
        if (rest[i] == '"') {
            rest.remove_prefix(i + 1);
            return text;
        }
        if (rest[i] == '\\' && ++i == rest.size()) break;
        text.push_back(rest[i]);
    }
    return std::nullopt;
}

void zitieren(std::string& ziel, std::string_view text) {
    ziel.push_back('"');
    for (const char zeichen : text) {
        if (zeichen == '"' || zeichen == '\\') ziel.push_back('\\');
        ziel.push_back(zeichen);
    }
    ziel.push_back('"');
}

// Control characters would break the lines of the file or be lost in it.
bool zitierbar(std::string_view text) {
    return std::none_of(text.begin(), text.end(), [](char zeichen) { return static_cast<unsigned char>(zeichen) < ' '; });
}

template <class Zahl>
std::optional<Zahl> Hexzahl(std::string_view text) {
    Zahl zahl{};
    const auto [ende, fehler] = std::from_chars(text.data(), text.data() + text.size(), zahl, 16);
    if (fehler != std::errc{} || ende != text.data() + text.size()) return std::nullopt;
    return zahl;
}

void Hexbyte(std::string& ziel, unsigned char byte) {
    constexpr std::string_view Ziffern = "0123456789abcdef";
    ziel.push_back(Ziffern[byte >> 4U]);
    ziel.push_back(Ziffern[byte & 15U]);
}

// What stands behind the "=": "text", dword:…, hex:… or hex(kind):…
bool Inhalt_lesen(std::string_view rest, Regbaum::Wert& wert) {
    if (auto text = Zitat(rest)) {
        wert.Art = REG_SZ;
        wert.Bytes.assign(text->begin(), text->end());
        wert.Bytes.push_back('\0');
        return rest.empty();
    }
    if (beginnt_mit(rest, "dword:")) {
        const auto zahl = Hexzahl<std::uint32_t>(rest.substr(6));
        if (!zahl) return false;
        wert.Art = REG_DWORD;
        for (unsigned i = 0; i < 32; i += 8) wert.Bytes.push_back(static_cast<char>((*zahl >> i) & 255U));
        return true;
    }
    if (!beginnt_mit(rest, "hex")) return false;
    rest.remove_prefix(3);
    wert.Art = REG_BINARY;
    const auto punkt = rest.find(':');
    if (punkt == std::string_view::npos) return false;
    if (punkt > 0) {
        if (punkt < 3 || rest.front() != '(' || rest[punkt - 1] != ')') return false;
        const auto art = Hexzahl<std::uint32_t>(rest.substr(1, punkt - 2));
        if (!art) return false;
        wert.Art = *art;
    }
    rest.remove_prefix(punkt + 1);
    while (!rest.empty()) {
        const auto komma = std::min(rest.find(','), rest.size());
        const auto byte = Hexzahl<std::uint8_t>(ohne_Ränder(rest.substr(0, komma)));
        if (!byte) return false;
        wert.Bytes.push_back(static_cast<char>(*byte));
        rest.remove_prefix(std::min(komma + 1, rest.size()));
    }
    return true;
}

std::optional<Regbaum::Wert> Wertzeile(std::string_view zeile) {
    Regbaum::Wert wert;
    if (zeile.front() == '@') {
        zeile.remove_prefix(1);
    } else {
        auto name = Zitat(zeile);
        if (!name) return std::nullopt;
        wert.Name = std::move(*name);
    }
    zeile = ohne_Ränder(zeile);
    if (zeile.empty() || zeile.front() != '=' || !Inhalt_lesen(ohne_Ränder(zeile.substr(1)), wert)) return std::nullopt;
    return wert;
}

void Wert_anhängen(std::string& ziel, const Regbaum::Wert& wert) {
    if (wert.Name.empty())
        ziel += '@';
    else
        zitieren(ziel, wert.Name);
    ziel += '=';
    const std::string_view bytes(wert.Bytes.data(), wert.Bytes.size());
    if (wert.Art == REG_SZ && !bytes.empty() && bytes.back() == '\0' && zitierbar(bytes.substr(0, bytes.size() - 1))) {
        zitieren(ziel, bytes.substr(0, bytes.size() - 1));
    } else if (wert.Art == REG_DWORD && bytes.size() == 4) {
        ziel += "dword:";
        for (std::size_t i = 4; i-- > 0;) Hexbyte(ziel, static_cast<unsigned char>(bytes[i]));
    } else {
        ziel += "hex";
        if (wert.Art != REG_BINARY) {
            char ziffern[8];
            const char* ende = std::to_chars(ziffern, ziffern + sizeof ziffern, wert.Art, 16).ptr;
            ziel.append("(").append(ziffern, static_cast<std::size_t>(ende - ziffern)).append(")");
        }
        ziel += ':';
        for (std::size_t i = 0; i < bytes.size(); ++i) {
            if (i > 0) ziel += ',';
            Hexbyte(ziel, static_cast<unsigned char>(bytes[i]));
        }
    }
    ziel += "\r\n";
}

}  // namespace

Text Regbaum::gefaltet(const Text& oberer, std::string_view pfad) {
    Text ergebnis = oberer;
    while (!pfad.empty()) {
        const auto ende = std::min(pfad.find('\\'), pfad.size());
        if (ende > 0) {
            if (!ergebnis.empty()) ergebnis.push_back(Stufe);
            ergebnis += groß(pfad.substr(0, ende));
        }
        pfad.remove_prefix(std::min(ende + 1, pfad.size()));
    }
    return ergebnis;
}

Regbaum::Knoten* Regbaum::suche(const Text& gefaltet) {
    const auto treffer = knoten_.find(gefaltet);
    return treffer == knoten_.end() ? nullptr : &treffer->second;
}

const Regbaum::Knoten* Regbaum::suche(const Text& gefaltet) const {
    const auto treffer = knoten_.find(gefaltet);
    return treffer == knoten_.end() ? nullptr : &treffer->second;
}

Regbaum::Knoten& Regbaum::anlegen(const Text& oberer, std::string_view pfad, Text& gefaltet, bool& neu) {
    gefaltet = oberer;
    neu = false;
    Knoten* hier = suche(gefaltet);
    while (!pfad.empty()) {
        const auto ende = std::min(pfad.find('\\'), pfad.size());
        const auto stufe = pfad.substr(0, ende);
        pfad.remove_prefix(std::min(ende + 1, pfad.size()));
        if (stufe.empty()) continue;
        gefaltet = Regbaum::gefaltet(gefaltet, stufe);
        const auto [platz, frisch] = knoten_.try_emplace(gefaltet);
        if (frisch) platz->second.Pfad = (hier != nullptr && !hier->Pfad.empty() ? hier->Pfad + "\\" : Text()) + Text(stufe);
        hier = &platz->second;
        neu = neu || frisch;
    }
    return hier != nullptr ? *hier : knoten_[gefaltet];
}

bool Regbaum::löschen(const Text& gefaltet) {
    const auto treffer = knoten_.find(gefaltet);
    if (treffer == knoten_.end()) return false;
    knoten_.erase(treffer, knoten_.lower_bound(gefaltet + static_cast<char>(Stufe + 1)));
    return true;
}

Regbaum Regbaum::aus_Text(std::string_view inhalt) {
    Regbaum baum;
    Knoten* hier = nullptr;
    while (!inhalt.empty()) {
        auto ende = std::min(inhalt.find('\n'), inhalt.size());
        std::string zusammen;
        std::string_view zeile = inhalt.substr(0, ende);
        inhalt.remove_prefix(std::min(ende + 1, inhalt.size()));
        if (!zeile.empty() && zeile.back() == '\r') zeile.remove_suffix(1);
        zeile = ohne_Ränder(zeile);
        // Long hex values of other writers go on behind a backslash.
        while (!zeile.empty() && zeile.back() == '\\' && zeile.find("hex") != std::string_view::npos && !inhalt.empty()) {
            zusammen = zeile.substr(0, zeile.size() - 1);
            ende = std::min(inhalt.find('\n'), inhalt.size());
            auto fortsetzung = inhalt.substr(0, ende);
            inhalt.remove_prefix(std::min(ende + 1, inhalt.size()));
            if (!fortsetzung.empty() && fortsetzung.back() == '\r') fortsetzung.remove_suffix(1);
            zusammen += ohne_Ränder(fortsetzung);
            zeile = zusammen;
        }
        if (zeile.empty() || zeile.front() == ';') continue;
        if (zeile.front() == '[') {
            hier = nullptr;
            if (zeile.back() != ']') continue;
            const auto pfad = zeile.substr(1, zeile.size() - 2);
            if (!beginnt_mit(pfad, Wurzel) || !zitierbar(pfad)) continue;
            const auto unten = pfad.substr(Wurzel.size());
            if (!unten.empty() && unten.front() != '\\') continue;
            Text gefaltet;
            bool neu = false;
            hier = &baum.anlegen({}, unten, gefaltet, neu);
        } else if (hier != nullptr) {
            if (auto wert = Wertzeile(zeile)) {
                const Text name = groß(wert->Name);
                hier->Werte.insert_or_assign(name, std::move(*wert));
            }
        }
    }
    return baum;
}

std::string Regbaum::als_Text() const {
    std::string ziel(Kopf);
    ziel += "\r\n";
    for (const auto& [gefaltet, knoten] : knoten_) {
        if (gefaltet.empty() && knoten.Werte.empty()) continue;
        ziel.append("\r\n[").append(Wurzel);
        if (!gefaltet.empty()) ziel.append("\\").append(knoten.Pfad);
        ziel += "]\r\n";
        for (const auto& [name, wert] : knoten.Werte) Wert_anhängen(ziel, wert);
    }
    return ziel;
}

}  // namespace tonkartei
