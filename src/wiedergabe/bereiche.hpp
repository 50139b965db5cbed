// The areas of the main window, for what works on more than one of them.
#pragma once

namespace tonkartei {

class Kategorienbereich;
class Listenbereich;
class Wiedergabebereich;

struct Bereiche {
    Listenbereich& Lieder;
    Kategorienbereich& Kategorien;
    Wiedergabebereich& Wiedergabe;
};

}  // namespace tonkartei
