// The text of the box that came up last while a player is being started.
#pragma once

#include "oberflaeche/ansicht.hpp"

namespace tonkartei {

// One text for all boxes: whatever came up during a start, from a nested command too, counts as that start's failure.
class Startmeldung {
public:
    explicit Startmeldung(Ansicht& ansicht) {
        ansicht.Kasten.verbinden([this](const Text& kasten) { text = kasten; });
    }
    Startmeldung(const Startmeldung&) = delete;
    Startmeldung& operator=(const Startmeldung&) = delete;

    Text text;
};

}  // namespace tonkartei
