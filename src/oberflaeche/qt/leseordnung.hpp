// The order in which the eye goes through what lies side by side and one below the other.
#pragma once

#include <QRect>
#include <vector>

namespace tonkartei {

// The places' numbers: from band to band downward, within a band from column to column, and so on inside. What cannot be
// parted so goes by its upper left corner.
std::vector<std::size_t> Leseordnung(const std::vector<QRect>& plätze);

}  // namespace tonkartei
