// List files: one path a line, the path's own bytes.
#pragma once

#include <string_view>
#include <vector>

#include "plattform/dateisystem.hpp"

namespace tonkartei::spieler {

// By the ending of the name, in any case.
bool ist_Liste(const Text& pfad);

// A path as it stands in a list or on a command line, against the folder that it is meant from. What begins with a separator
// without being a whole path lies on the folder's drive.
Text ganzer_Pfad(const Text& pfad, const Text& ordner);

// The paths of a list: lines ended by CR LF or LF; comments ("#") and blank lines are skipped, relative paths stand against
// `ordner`.
std::vector<Text> lies_Liste(std::string_view inhalt, const Text& ordner);

// List files replaced by what they hold; a list that cannot be read holds nothing. Lists in lists are taken as songs.
std::vector<Text> entfaltet(const std::vector<Text>& dateien, Dateisystem& platte);

}  // namespace tonkartei::spieler
