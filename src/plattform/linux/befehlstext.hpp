// A command text taken apart into program and arguments.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "grundlagen/text.hpp"

namespace tonkartei {

// The program stands first and is not quoted (but may be): since its path may hold blanks, the longest beginning that is an
// executable file counts. Relative programs lie in `ordner`. The program with its full path, then the arguments; none
// without a program.
std::optional<std::vector<Text>> Befehl_zerlegt(std::string_view befehl, const Text& ordner);

// Arguments: blanks divide, double quotes hold together and are taken out; a doubled one within them stands for itself.
std::vector<Text> Argumente_von(std::string_view text);

}  // namespace tonkartei
