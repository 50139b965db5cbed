// Text of the program: UTF-8 in a std::string. Lengths and positions that users see count characters, not bytes; a byte
// that is not part of valid UTF-8 (paths may hold such) counts as one character.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tonkartei {

using Text = std::string;

// The character of a code of the Windows page, 0 to 255, as Text. The codes 127 to 130 stand for themselves.
Text Zeichen(int Code);

// Number of characters.
std::size_t Zeichenzahl(std::string_view text);

// The first `anzahl` characters; the whole text if it has no more.
Text links(std::string_view text, std::size_t anzahl);

// The last `anzahl` characters.
Text rechts(std::string_view text, std::size_t anzahl);

// From character `von` (counted from 1) to the end, empty behind the end.
Text ab(std::string_view text, std::size_t von);

// Blanks (code 32 only) cut from both ends.
Text getrimmt(std::string_view text);

// Every occurrence of `was` replaced, searched from the left, what was put in is not searched again.
Text ersetzt(std::string_view text, std::string_view was, std::string_view durch);

// Every occurrence of `was` taken out, until none is left: what joins up through a removal goes too.
Text Zeichen_entfernen(std::string_view text, std::string_view was);

// "&" doubled, for labels in which it would mark an access key.
Text und_verdoppelt(std::string_view text);

// Upper case of all letters of the Windows page ("ÿ" to "Ÿ" too); "ß" stays.
Text groß(std::string_view text);

// The key by which sorted lists order: case and accents are ignored (ä as a, ß as ss, æ as ae). Compare bytewise.
Text Sortierschlüssel(std::string_view text);

// Text for the eye: bytes that are not valid UTF-8 become U+FFFD.
Text anzeigbar(std::string_view text);

inline Text in_Anführungszeichen(std::string_view text) { return "\"" + Text(text) + "\""; }

// Paragraph ends in message texts. Boxes show each CR as one line break.
inline constexpr std::string_view CR = "\r";
inline constexpr std::string_view CRCR = "\r\r";

}  // namespace tonkartei
