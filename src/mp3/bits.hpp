// Numbers as texts of "0" and "1", the highest bit first: the form in which a frame header is taken apart by position.
#pragma once

#include <array>
#include <string_view>

#include "grundlagen/text.hpp"
#include "grundlagen/zahl.hpp"

namespace tonkartei {

// The bits of four bytes without the zeros ahead of the first "1"; four zeros give an empty text. Clears `bytes`.
Text Bytes_zu_Bits(std::array<Byte, 4>& bytes);

// The value of such a text, 0 for an empty one. Overflow (6) when it does not fit.
Long Bits_zu_Zahl(std::string_view bits);

}  // namespace tonkartei
