// The three lines with which every exchange file begins: the program's title, its version, what kind of file it is.
#pragma once

#include "grundlagen/text.hpp"

namespace tonkartei {

class Kanäle;

enum class Kopffehler { keiner, Titel, Version, Kennung };

// Reads the head and tells the first line that is not as it should be; a line that is missing is as wrong as any other.
Kopffehler Kopf_prüfen(Kanäle& kanäle, int nummer, const Text& version, const Text& kennung);

}  // namespace tonkartei
