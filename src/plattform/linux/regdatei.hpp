// The tree of keys and values, and its text form: the syntax of Windows' registry files, with the bytes of names and texts
// as they are.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "grundlagen/text.hpp"

namespace tonkartei {

// Keys below HKEY_CURRENT_USER. A key is addressed by its folded path: upper case, levels divided by a byte that sorts below
// all others, so that what lies below a key follows it without a gap.
class Regbaum {
public:
    struct Wert {
        Text Name;  // empty: the default value
        std::uint32_t Art = 0;
        std::vector<char> Bytes;
    };
    struct Knoten {
        Text Pfad;                   // as first given, "\" between levels
        std::map<Text, Wert> Werte;  // by folded name
    };

    // Folded path of `pfad` below an already folded one. Empty levels are skipped.
    static Text gefaltet(const Text& oberer, std::string_view pfad);

    Knoten* suche(const Text& gefaltet);
    const Knoten* suche(const Text& gefaltet) const;
    // The key, made with the levels above it where they are missing; true in `neu` when anything was.
    Knoten& anlegen(const Text& oberer, std::string_view pfad, Text& gefaltet, bool& neu);
    // Takes the keys below along. False when there is none.
    bool löschen(const Text& gefaltet);
    const std::map<Text, Knoten>& alle() const { return knoten_; }

    // What cannot be understood is left out.
    static Regbaum aus_Text(std::string_view inhalt);
    std::string als_Text() const;

private:
    std::map<Text, Knoten> knoten_;
};

}  // namespace tonkartei
