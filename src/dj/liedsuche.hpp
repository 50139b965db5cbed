// Which songs pass the category boxes and the search text of a desk.
#pragma once

#include <functional>
#include <vector>

#include "datenbank/modell.hpp"

namespace tonkartei {

class Liedsuche {
public:
    explicit Liedsuche(const Modell& modell) : modell_(modell) {}

    // Takes the names as they are now. They cannot change while a desk is open, so that a key stroke need not spell them out
    // again.
    void vorbereiten();
    // In the order of their numbers. The text (as typed, any case; blank fits all) may run from the artist into the title.
    std::vector<Long> passende(const Text& Schnellsuche, const std::function<bool(int Kategorie)>& zeigt) const;

private:
    const Modell& modell_;
    std::vector<Text> namen_;  // artist and title without a gap, in upper case; song n at n - 1
};

}  // namespace tonkartei
