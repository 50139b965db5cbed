// Text at the system's door: UTF-8 inside, 16-bit units outside. Half a surrogate pair, which names of files may hold, is
// kept as the three bytes that it would have as a character, so every name comes back as it was.
#pragma once

#include <string>
#include <string_view>

#include "grundlagen/text.hpp"

namespace tonkartei {

// A byte that is not part of UTF-8 comes from a list file in the code page and is read as its character.
std::wstring breit(std::string_view text);
Text schmal(std::wstring_view text);

}  // namespace tonkartei
