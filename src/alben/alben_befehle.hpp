// What the main window does with the albums besides showing them.
#pragma once

#include <functional>

#include "grundlagen/text.hpp"

namespace tonkartei {

class Album_Start;
class Album_wählen;
class Alben_Datei;
class Ansicht;
struct Modell;

class Alben_Befehle {
public:
    Alben_Befehle(Modell& modell, Alben_Datei& datei, Album_wählen& auswahl, Album_Start& start, Ansicht& ansicht);

    // The album tab was chosen: makes the albums ready. False, mostly after a box, when the tab has nothing to show.
    bool Ansicht_öffnen();
    // The albums are loaded, or are read now. False after a box, when there are none to be had.
    bool Alben_bereit();
    // "Album spielen...": asks for an album and hands it to the player.
    void Menü_starte_Album();

    // The album manager is open; its albums are not to be looked at meanwhile.
    std::function<bool()> Alben_offen = [] { return false; };

private:
    Modell& modell_;
    Alben_Datei& datei_;
    Album_wählen& auswahl_;
    Album_Start& start_;
    Ansicht& ansicht_;
};

}  // namespace tonkartei
