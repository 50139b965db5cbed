// List files: one path a line, the path's own bytes.
#pragma once

#include <string_view>
#include <vector>

#include "grundlagen/text.hpp"

namespace tonkartei::spieler {

// By the ending of the name, in any case.
bool ist_Liste(const Text& pfad);

// The paths of a list: lines ended by CR LF or LF; comments ("#") and blank lines are skipped, relative paths stand against
// `ordner` (with separator at its end).
std::vector<Text> lies_Liste(std::string_view inhalt, const Text& ordner);

// List files replaced by what they hold; a list that cannot be read holds nothing. Lists in lists are taken as songs.
std::vector<Text> entfaltet(const std::vector<Text>& dateien);

}  // namespace tonkartei::spieler
