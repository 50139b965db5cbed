// The display, put together: so far the dialog of its settings.
#pragma once

#include "display/display_setup.hpp"

namespace tonkartei {

struct Displayraum {
    Displayraum(Ansicht& ansicht, Display_Einstellungen& werte) : setup(ansicht, werte) {}
    Displayraum(const Displayraum&) = delete;
    Displayraum& operator=(const Displayraum&) = delete;

    Display_Setup setup;
};

}  // namespace tonkartei
