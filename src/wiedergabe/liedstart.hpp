// The buttons that start one song: the chosen one, one by chance, the next one.
#pragma once

#include "grundlagen/zahl.hpp"

namespace tonkartei {

class Abspieler;
class Listenbereich;
class Listenfolge;
class Wiedergabebereich;
class Zufallslied;

class Liedstart {
public:
    Liedstart(Wiedergabebereich& bereich, Listenbereich& lieder, Listenfolge& folge, Zufallslied& zufall,
              Abspieler& spieler);

    void Lied_starten();
    // While autoplay goes in order, the button of chance means next.
    void Zufallslied_starten();
    // On to the next song in the order of the list, around its end. False when there is nothing to go on to.
    bool nächstes_starten();

private:
    // The button's next song; 0 when the choice moved but nothing is to be played.
    Long nächstes_Lied();

    Wiedergabebereich& bereich_;
    Listenbereich& lieder_;
    Listenfolge& folge_;
    Zufallslied& zufall_;
    Abspieler& spieler_;
};

}  // namespace tonkartei
