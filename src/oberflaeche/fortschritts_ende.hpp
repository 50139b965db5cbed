// Sees to it that a progress window is closed, however the work that shows it ends.
#pragma once

#include "oberflaeche/fortschritt.hpp"

namespace tonkartei {

class Fortschritts_Ende {
public:
    explicit Fortschritts_Ende(Fortschritts_Fenster& fenster) noexcept : fenster_(fenster) {}
    ~Fortschritts_Ende() {
        try {
            fenster_.anzeigen(100);
        } catch (...) {
            // The failure that brought us here counts more than a window that cannot be hidden.
        }
    }
    Fortschritts_Ende(const Fortschritts_Ende&) = delete;
    Fortschritts_Ende& operator=(const Fortschritts_Ende&) = delete;

private:
    Fortschritts_Fenster& fenster_;
};

}  // namespace tonkartei
