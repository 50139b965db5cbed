// The file that a command is to write, chosen by the user.
#pragma once

#include "grundlagen/text.hpp"

namespace tonkartei {

class Ansicht;
class Dateisystem;

// Empty when nothing was chosen, or when it exists and is not to be replaced, which is asked under that caption.
Text Zieldatei_wählen(Ansicht& ansicht, Dateisystem& dateien, const Text& filter, const Text& Titel_der_Frage);

}  // namespace tonkartei
