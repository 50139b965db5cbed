// An album of the songs that are being added.
#pragma once

#include "alben/alben.hpp"
#include "alben/alben_datei.hpp"
#include "lieder/hinzufuegen/uebernahme_auftrag.hpp"

namespace tonkartei {

class Neues_Album {
public:
    Neues_Album(Modell& modell, Alben& alben, Alben_Datei& datei, Ansicht& ansicht)
        : modell_(modell), alben_(alben), datei_(datei), ansicht_(ansicht) {}

    // Asks for the names and adds an album of the first `A` new songs, at most 200; the company fills its entries. Without
    // names, or where there are no albums to add to, none is made. Overflow (6) for more than 255 songs.
    void erstellen(Long A, Begleitung& begleitung);

private:
    bool geladen();
    bool benennen(Long Nr);

    Modell& modell_;
    Alben& alben_;
    Alben_Datei& datei_;
    Ansicht& ansicht_;
};

}  // namespace tonkartei
