// Paths in the forms of this system.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "grundlagen/text.hpp"

namespace tonkartei {

struct Pfadform {
    Text Name;                // "C:\a\b" or "\\server\share\a\b"; no separator at its end but a root's
    std::size_t Wurzel = 0;   // so many bytes of it are the root
    bool als_Ordner = false;  // it was written with one

    // For the wide calls: with the prefix that lifts their limit of 260 units, and their habit of reading names otherwise
    // than they stand.
    std::wstring weit() const;
};

// The whole path without dots and doubled separators, "/" taken for "\". Bare names lie in `ordner`, "\a" at the root of its
// drive. None for what no file can bear: reserved names in any folder and with any ending ("NUL.mp3"), names that end with a
// dot or a blank (the system would cut it and mean another file), characters that names cannot hold, streams ("a:b"),
// devices, and "Z:relative", since a folder of every drive is not kept.
std::optional<Pfadform> Pfadform_von(const Text& pfad, const Text& ordner);

}  // namespace tonkartei
