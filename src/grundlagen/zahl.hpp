// Numbers: rounding to the nearest integer with ties to the even one, checked narrowing, numbers in texts.
#pragma once

#include <cstdint>
#include <string_view>

#include "grundlagen/text.hpp"

namespace tonkartei {

using Byte = std::uint8_t;  // 8-bit, 0 to 255
using Long = std::int32_t;  // 32-bit, signed

// Rounded to the nearest, ties to even. Overflow (6) when the target cannot hold the result, or it is no number.
Long gerundet(double wert);
Byte gerundet_Byte(double wert);
int gerundet_Integer(double wert);  // 16-bit range

// Narrowing of whole numbers; overflow (6) outside the target's range.
Long als_Long(long long wert);
Byte als_Byte(long long wert);

// The number that a text begins with: "0.5", " 12 ", "-3x"; a comma or any other character ends it; 0 without one.
double Zahlwert(std::string_view text);

// Decimal digits, with "-" in front if negative.
Text Zahltext(long long wert);

// With a point before every three digits: "1.234.567".
Text Zahl_mit_Punkten(long long wert);

// Padded with "0" to `Stellen` digits. A number with more digits gives an empty text.
Text Zahl_mit_Nullen(long long Wert, int Stellen);

// Anteil / Gesamt x 100, rounded, held to 0 to 100; 0 when Gesamt is 0.
int Prozent(double Anteil, double Gesamt);

}  // namespace tonkartei
