// Which songs a view of the collection shows, and in which order and words. No control in it.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "datenbank/modell.hpp"

namespace tonkartei {

// What the list is sorted by and begins with.
enum class Sortierung { Titel = 1, Artist = 2 };

// Finds the songs of a view, in the order of the list. Keeps the keys and their order from one build to the next, since
// search and boxes change far more often than names; what has changed is found by comparing the names themselves.
class Liederordnung {
public:
    // The songs whose key holds `suche` (as typed, any case; empty fits all) and whose category passes. The key is the two
    // fields joined without a separator, in upper case, so a search may match across the seam.
    std::vector<long long> gefilterte_Lieder(const Modell& modell, Sortierung sortierung, const Text& suche,
                                             const std::function<bool(int Kategorie)>& zeigt_Kategorie);

private:
    // Texts of all songs one behind the other; text n ends at `enden[n - 1]`.
    struct Textreihe {
        std::string bytes;
        std::vector<std::uint32_t> enden;
        std::string_view operator[](Long n) const;
        void anhängen(std::string_view a, std::string_view b);
    };
    struct Stand {
        Textreihe namen;          // the joined fields as they are
        Textreihe schlüssel;      // in upper case; empty until the first search
        std::vector<Long> folge;  // song numbers in order
    };
    static bool gilt(const Stand& stand, const Modell& modell, Sortierung sortierung);
    static Stand geordnet(const Modell& modell, Sortierung sortierung);

    Stand nach_Titel_, nach_Artist_;
};

// "Titel (Artist)" or "Artist - Titel".
Text Listenzeile(const Lied& lied, Sortierung sortierung);
// The number of a line of a hidden Nr_Liste, which holds plain digits.
Long Nummer_von(const Text& zeile);

struct Listensumme {
    long long KByte = 0;
    long long Sekunden = 0;
    void dazu(const Lied& lied) {
        KByte += lied.Größe;
        Sekunden += Sekunden_von(lied.Zeit);
    }
};

}  // namespace tonkartei
