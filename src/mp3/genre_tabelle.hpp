// The genre numbers of a tag and their words. The program never shows a genre; the table is the module's vocabulary.
#pragma once

#include <array>
#include <string_view>

namespace tonkartei {

// Index 0 to 147. The slips of the spelling belong to it.
extern const std::array<std::string_view, 148> Genre_Tabelle;

}  // namespace tonkartei
