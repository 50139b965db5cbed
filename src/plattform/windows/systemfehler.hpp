// The system's errors by the numbers of the program.
#pragma once

#include "grundlagen/fehler.hpp"

namespace tonkartei {

// Of what GetLastError tells. Which number refused access becomes depends on the work: opening and renaming say 75,
// deleting and listing say 70.
int Fehlernummer(unsigned long fehler, int verweigert = 75);
[[noreturn]] void werfen(unsigned long fehler, const Text& pfad, int verweigert = 75);
// The last one of this thread.
[[noreturn]] void werfen_letzten(const Text& pfad, int verweigert = 75);

}  // namespace tonkartei
