// One file by the shell: whole operations with the default questions, the answer says whether it was done.
#pragma once

#include "grundlagen/text.hpp"

namespace tonkartei {

class Dateisystem;
class Shell;

// A folder that bears the target's name would take the file in under its old one, so it counts as a failure.
bool Datei_bewegen(Shell& shell, Dateisystem& dateien, const Text& von, const Text& nach);
bool Datei_kopieren(Shell& shell, const Text& von, const Text& nach);
bool in_den_Papierkorb(Shell& shell, const Text& pfad);

}  // namespace tonkartei
