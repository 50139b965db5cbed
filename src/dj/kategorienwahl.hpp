// The category boxes of a desk and its schemes. Box 1 is the one of all songs. The selection lives in the boxes.
#pragma once

#include "datenbank/modell.hpp"
#include "grundlagen/ereignis.hpp"
#include "oberflaeche/elementreihe.hpp"

namespace tonkartei {

class Kategorienwahl {
public:
    using Kästen = Elementreihe<Kasten, Kategorien_maximal>;

    // Listens to the boxes.
    Kategorienwahl(const Modell& modell, Kästen& kästen);

    // Captions by the collection; boxes beyond its categories have none and are not shown.
    void beschriften();
    bool zeigt(int Kategorie) const;
    // The boxes in two columns of ten.
    Knoten anordnung();
    // The boxes of a scheme, and no other.
    void Schema_anwenden(int n);

    // The list is to be built anew.
    Ereignis<> geändert;

private:
    void Kasten_geändert(int k);

    const Modell& modell_;
    Kästen& kästen_;
    bool Kategorie_Sperre_ = false;  // the boxes are being changed by the code
};

}  // namespace tonkartei
