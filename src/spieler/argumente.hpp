// The player's command line.
#pragma once

#include <vector>

#include "grundlagen/text.hpp"

namespace tonkartei::spieler {

struct Argumente {
    Text Klasse = "Winamp v1.x";
    bool neu = false;           // a further window even if one of the class is there
    std::vector<Text> Dateien;  // absolute
};

// /CLASS=Name (quotes around the name may have been kept or removed; the last one counts), /NEW, and files, in any order.
// Relative files are taken against `ordner`.
Argumente lies_Argumente(const std::vector<Text>& worte, const Text& ordner);

}  // namespace tonkartei::spieler
