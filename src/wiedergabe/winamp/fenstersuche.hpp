// The search for a window by a part of its class name.
#pragma once

#include "grundlagen/text.hpp"
#include "plattform/fenstersystem.hpp"

namespace tonkartei {

class Ansicht;

// Lets pending events run at every window that it visits, so anything may happen during a search. Upper and lower case
// differ. The last match in window order wins; 0 is none.
class Fenstersuche {
public:
    Fenstersuche(Fenstersystem& fenstersystem, Ansicht& ansicht) : system_(fenstersystem), ansicht_(ansicht) {}

    Hwnd Fenster_suchen_global(const Text& Klassenteil);
    // Walks the whole tree below `Fenster`, but only a direct child of it can be the result.
    Hwnd Fenster_suchen_unter(Hwnd Fenster, const Text& Klassenteil);

private:
    Fenstersystem& system_;
    Ansicht& ansicht_;
};

}  // namespace tonkartei
