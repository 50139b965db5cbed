// The operator's command line.
#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "grundlagen/text.hpp"
#include "grundlagen/zeit.hpp"

namespace tonkartei {

struct Optionen {
    std::optional<Text> wurzel, ordner;
    Text parameter;
    bool echt = false, qt = false, zweite_Instanz = false;
    Zeitpunkt uhr{2026, 1, 15, 12, 0, 0};
    std::vector<std::pair<Text, Text>> einstellungen;
};

// std::invalid_argument tells what is wrong.
Optionen Optionen_lesen(const std::vector<Text>& argumente);

}  // namespace tonkartei
