// The windows of the categories, put together. The area in the main window is that window's.
#pragma once

#include "datenbank/haus.hpp"
#include "kategorien/kategorie_bearbeiten.hpp"
#include "kategorien/kategorie_wahl.hpp"

namespace tonkartei {

struct Kategorienraum {
    explicit Kategorienraum(Haus& haus) : wahl(haus.ansicht, haus.modell), bearbeiten(haus.ansicht, haus.modell, wahl) {}
    Kategorienraum(const Kategorienraum&) = delete;
    Kategorienraum& operator=(const Kategorienraum&) = delete;

    Kategorie_Wahl wahl;
    Kategorie_bearbeiten bearbeiten;
};

}  // namespace tonkartei
