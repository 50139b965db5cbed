// Drag and drop: the mark of the program's own drags, and files from the file manager.
#pragma once

#include <vector>

#include "grundlagen/text.hpp"

class QMimeData;

namespace tonkartei {

inline constexpr char Ziehart[] = "application/x-tonkartei-ziehen";

bool hat_Pfade(const QMimeData& daten);
// Local paths, their bytes as the file system has them.
std::vector<Text> Pfade_aus(const QMimeData& daten);

}  // namespace tonkartei
