// Where a song goes when its collection is dissolved: up to three levels of folders and a readable file name.
#pragma once

#include <array>
#include <vector>

#include "datenbank/modell.hpp"

namespace tonkartei {

// What a level or a part of the name is taken from; the value is the position in the pick lists.
enum class Baustein { Kategorie, Artist, Titel, keiner };

struct Ablageplan {
    std::array<Baustein, 3> Ebene{Baustein::Kategorie, Baustein::Artist, Baustein::keiner};
    std::array<Baustein, 3> DName{Baustein::Titel, Baustein::keiner, Baustein::keiner};

    // The names of the folders below the target, outermost first; a level without a text is left out. None of them leads out
    // of the folder that it stands in.
    std::vector<Text> Ordner(const Bestand& bestand, const Lied& lied) const;
    // "Titel.mp3", "Artist - Titel.mp3"; ".mp3" alone when no part is chosen.
    Text Dateiname(const Bestand& bestand, const Lied& lied) const;
};

}  // namespace tonkartei
