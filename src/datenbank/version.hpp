// What the program calls itself: heads every file of the family and the boxes that have no caption of their own.
#pragma once

#include "grundlagen/text.hpp"

namespace tonkartei {

inline constexpr const char* Programmtitel = "Tonkartei";
inline constexpr int Version_Haupt = 1;
inline constexpr int Version_Neben = 2;
inline constexpr int Version_Revision = 16;
inline constexpr const char* Programm_Autor = "Autor: die Entwickler der Tonkartei";
inline constexpr const char* Programm_Copyright = "Copyright © 2026, MIT-Lizenz";
// Shown where the user is asked to get in touch; the package's texts take it from this line.
inline constexpr const char* Kontaktadresse = "tonkartei@example.org";

// "V 1.02 16": names the format of every file of the family.
Text Programmversion_bilden(int haupt, int neben, int revision);

}  // namespace tonkartei
