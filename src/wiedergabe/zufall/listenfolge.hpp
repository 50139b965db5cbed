// On to the next song in the order of the list.
#pragma once

#include "grundlagen/zahl.hpp"

namespace tonkartei {

class Ansicht;
class Listenbereich;

class Listenfolge {
public:
    Listenfolge(Listenbereich& lieder, Ansicht& ansicht) : lieder_(lieder), ansicht_(ansicht) {}

    // No line in the song tab; no album or none of its titles in the album tab.
    bool leer() const;
    // In the song tab: the choice moves to the next line, from the last one to the first. False when the list is empty.
    bool nächste_Zeile();
    // In the album tab: the choice moves on in the same way until it stands on a title that the collection has. False
    // without an album or without titles. An album of which the collection has nothing is searched without end; events run
    // meanwhile, so the user can show another one or leave.
    bool nächster_Titel();

private:
    Listenbereich& lieder_;
    Ansicht& ansicht_;
    bool sucht_ = false;
};

}  // namespace tonkartei
