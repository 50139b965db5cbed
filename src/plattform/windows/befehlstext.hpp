// A command text taken apart into program and the rest.
#pragma once

#include <optional>
#include <string_view>

#include "plattform/dateisystem.hpp"

namespace tonkartei {

struct Befehl {
    Text Programm;  // full path
    Text Zeile;     // for the new process: the program in quotes, and what followed it as it was written
};

// The program stands first and is not quoted (but may be): since its path may hold blanks, the longest beginning that is a
// file counts. Relative programs lie in the current folder. None without a program.
std::optional<Befehl> Befehl_zerlegt(std::string_view befehl, Dateisystem& dateien);

}  // namespace tonkartei
