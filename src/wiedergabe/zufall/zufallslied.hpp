// The random choice: which of the songs in view is played.
#pragma once

#include "grundlagen/zahl.hpp"

namespace tonkartei {

class Listenbereich;
class Rechner;
class Spielzählung;
class Zufallsliste;
struct Einstellungen;
struct Modell;

class Zufallslied {
public:
    Zufallslied(const Modell& modell, const Einstellungen& einstellungen, const Spielzählung& zählung, Rechner& rechner,
                Listenbereich& lieder);

    // Draws a song, moves the choice of the list there and gives its number; starts nothing. 0 when there is nothing to
    // draw from. What was started lately is drawn again only after a hundred draws in vain.
    Long Zufallslied_wählen();

private:
    Zufallsliste Liste_im_Blick() const;
    bool vor_kurzem_gespielt(Long Nr) const;

    const Modell& modell_;
    const Einstellungen& einstellungen_;
    const Spielzählung& zählung_;
    Rechner& rechner_;
    Listenbereich& lieder_;
};

}  // namespace tonkartei
