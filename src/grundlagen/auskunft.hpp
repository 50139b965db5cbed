// What a program tells about itself on its command line, before it opens or starts anything.
#pragma once

#include <optional>
#include <string_view>

#include "grundlagen/text.hpp"

namespace tonkartei {

// The text for "--help" or "--version", whichever of the two comes first as a word of its own; none without either.
std::optional<Text> Auskunft(int anzahl, const char* const* worte, std::string_view hilfe, std::string_view version);

}  // namespace tonkartei
