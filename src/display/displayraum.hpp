// The display, put together: so far the dialog of its settings.
#pragma once

#include "datenbank/haus.hpp"
#include "display/display_setup.hpp"

namespace tonkartei {

struct Displayraum {
    explicit Displayraum(Haus& haus) : setup(haus.ansicht, haus.einstellungen.Display) {}
    Displayraum(const Displayraum&) = delete;
    Displayraum& operator=(const Displayraum&) = delete;

    Display_Setup setup;
};

}  // namespace tonkartei
