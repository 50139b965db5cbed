// What a piece of work fails with.
#pragma once

#include <functional>

#include "grundlagen/fehler.hpp"

namespace tonkartei {

// The number of its run-time error; 0 without one.
inline int Fehler_von(const std::function<void()>& arbeit) {
    try {
        arbeit();
    } catch (const Laufzeitfehler& fehler) {
        return fehler.Nummer();
    }
    return 0;
}

}  // namespace tonkartei
