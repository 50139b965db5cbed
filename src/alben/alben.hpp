// The album store of the open collection and the place for a foreign one. Whether the own one is loaded and must be written
// stands in the model.
#pragma once

#include "alben/album.hpp"

namespace tonkartei {

class Ansicht;
class Rechner;
struct Modell;

class Alben {
public:
    Alben(Rechner& rechner, Ansicht& ansicht);

    Albenbestand eigene, fremde;

    // Adds an empty album to the own ones and gives its number; 0, after the box, when there is no room.
    Long Album_neu();
    // Back to what a new album is: "Album Nr. n" of this year, without titles.
    void Album_reset(Long Nr);
    // Adds a title to an album and gives its number; 0, after the box, when there is no room.
    int Titel_neu(Long Nr);
    void Titel_reset(Long Nr, int Titel);

private:
    Rechner& rechner_;
    Ansicht& ansicht_;
};

// The song that a title is linked to; 0 when it has none, or none that the collection has.
Long Lied_von(const Modell& modell, const Album_Lied& titel);

// The line of an album in lists that begin with the performer, and in those that begin with the title.
Text Album_Zeile(const Album& album);
Text Album_Text(const Album& album);

}  // namespace tonkartei
