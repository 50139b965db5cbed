// Everything that a second collection or a copy takes part in, put together.
#pragma once

#include "austausch/abgleich/abgleich.hpp"
#include "austausch/aufloesung/aufloesung.hpp"
#include "austausch/sicherung/sicherung.hpp"
#include "austausch/vergleich/vergleich.hpp"

namespace tonkartei {

class Listenbereich;
struct Wiedergabe;

struct Austausch {
    // `liste` is the main window's area.
    Austausch(Datenbankraum& datenbank, Kategorienraum& kategorien, Liederraum& lieder, Wiedergabe& wiedergabe,
              Listenbereich& liste);
    Austausch(const Austausch&) = delete;
    Austausch& operator=(const Austausch&) = delete;

    // Closes its windows.
    void entladen();

    Quell_Datenbank quelle;
    Sicherung sicherung;
    Vergleich vergleich;
    Abgleich abgleich;
    Auflösung auflösung;
};

}  // namespace tonkartei
