// File work that may fail without a word, where what follows asks only whether it worked.
#pragma once

#include <utility>

#include "grundlagen/fehler.hpp"

namespace tonkartei {

// Runs the work; false when it ended in a file failure. Any other run-time error goes on.
template <class Arbeit>
bool versuchen(Arbeit&& arbeit) {
    try {
        std::forward<Arbeit>(arbeit)();
        return true;
    } catch (const Dateifehler&) {
        return false;
    }
}

}  // namespace tonkartei
