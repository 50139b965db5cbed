// The Windows code page 1252: files of the family, tags and exports are written in it. Loss-free for all 256 bytes: the
// five codes that the page leaves unassigned stand for the C1 code points of the same number.
#pragma once

#include <optional>
#include <string_view>

#include "grundlagen/text.hpp"

namespace tonkartei {

// Nothing but characters that the page and UTF-8 write alike, one byte each.
bool nur_ASCII(std::string_view text);

// Bytes of the page to Text.
Text aus_1252(std::string_view bytes);

// Text to bytes of the page; characters outside it, and bytes that are not UTF-8, become "?".
std::string nach_1252(std::string_view text);
// The same into a place of at least as many bytes as the text has; the end of what was put there.
char* nach_1252(std::string_view text, char* ziel);

// The text as the page can hold it: what lies outside becomes "?". Applied when a text enters a record or a list, so
// that memory equals disk.
Text auf_Seite(std::string_view text);

// One code point of UTF-8 from `text` at byte `stelle`, which moves on behind it. None for an invalid byte (moves on by 1).
std::optional<char32_t> nächstes_Zeichen(std::string_view text, std::size_t& stelle);

// A code point as UTF-8, appended.
void anhängen(Text& text, char32_t zeichen);

// Code point of a page code, and back (none outside the page).
char32_t Seite_zu_Unicode(unsigned char code);
std::optional<unsigned char> Unicode_zu_Seite(char32_t zeichen);

}  // namespace tonkartei
