// A list file of the songs that are being added: their paths in the collection, one a line, and no other line.
#pragma once

#include "datenbank/modell.hpp"
#include "lieder/hinzufuegen/uebernahme_auftrag.hpp"
#include "plattform/kanaele.hpp"

namespace tonkartei {

class Ansicht;

class Neue_Playlist {
public:
    Neue_Playlist(const Modell& modell, Kanäle& kanäle, Ansicht& ansicht)
        : modell_(modell), kanäle_(kanäle), ansicht_(ansicht) {}

    // Asks where to, and opens the file; the company writes its lines and closes it. Without a file nothing is written.
    void erstellen(Begleitung& begleitung);

private:
    const Modell& modell_;
    Kanäle& kanäle_;
    Ansicht& ansicht_;
};

}  // namespace tonkartei
