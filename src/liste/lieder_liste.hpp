// Which songs a view of the collection shows, and in which order and words. No control in it.
#pragma once

#include <functional>
#include <vector>

#include "datenbank/modell.hpp"

namespace tonkartei {

// What the list is sorted by and begins with.
enum class Sortierung { Titel = 1, Artist = 2 };

// The songs whose key holds `suche` (as typed, any case; empty fits all) and whose category passes, in the order of the
// list. The key is the two fields joined without a separator, in upper case, so a search may match across the seam.
std::vector<long long> gefilterte_Lieder(const Modell& modell, Sortierung sortierung, const Text& suche,
                                         const std::function<bool(int Kategorie)>& zeigt_Kategorie);

// "Titel (Artist)" or "Artist - Titel".
Text Listenzeile(const Lied& lied, Sortierung sortierung);

struct Listensumme {
    long long KByte = 0;
    long long Sekunden = 0;
    void dazu(const Lied& lied) {
        KByte += lied.Größe;
        Sekunden += Sekunden_von(lied.Zeit);
    }
};

}  // namespace tonkartei
