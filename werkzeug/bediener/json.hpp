// Just enough JSON for a line protocol: objects with their keys in order, and texts that may hold bytes outside UTF-8. Such
// bytes travel as the escapes of U+DC80 to U+DCFF, so that paths come back unchanged.
#pragma once

#include <concepts>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "grundlagen/text.hpp"

namespace tonkartei::Json {

// In quotes.
Text Zeichenkette(std::string_view text);
// The text of a JSON string that begins at `stelle` with a quote; moves behind it. None when it is not well formed.
std::optional<Text> Zeichenkette_lesen(std::string_view zeile, std::size_t& stelle);

inline Text Wert(bool wert) { return wert ? "true" : "false"; }
template <std::integral T>
Text Wert(T wert) {
    return std::to_string(wert);
}
inline Text Wert(std::string_view text) { return Zeichenkette(text); }
inline Text Wert(const char* text) { return Zeichenkette(text); }
inline Text Wert(const Text& text) { return Zeichenkette(text); }

// Elements that are JSON already.
Text Liste(const std::vector<Text>& teile);
Text Textliste(const std::vector<Text>& texte);

class Objekt {
public:
    template <class T>
    Objekt& mit(std::string_view name, const T& wert) {
        return roh(name, Wert(wert));
    }
    // A value that is JSON already.
    Objekt& roh(std::string_view name, std::string_view wert);
    Text text() const { return "{" + innen_ + "}"; }

private:
    Text innen_;
};

}  // namespace tonkartei::Json
