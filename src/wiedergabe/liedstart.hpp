// The buttons that start one song: the chosen one, one by chance, the next one.
#pragma once

#include "grundlagen/zahl.hpp"

namespace tonkartei {

class Listenbereich;
class Listenfolge;
class Spielzählung;
class Wiedergabebereich;
class Zufallslied;

class Liedstart {
public:
    Liedstart(Wiedergabebereich& bereich, Listenbereich& lieder, Listenfolge& folge, Zufallslied& zufall,
              Spielzählung& zählung);

    void Lied_starten();
    // While autoplay goes in order, the button of chance means next.
    void Zufallslied_starten();

private:
    // 0 when the choice moved but nothing is to be played.
    Long nächstes_Lied();

    Wiedergabebereich& bereich_;
    Listenbereich& lieder_;
    Listenfolge& folge_;
    Zufallslied& zufall_;
    Spielzählung& zählung_;
};

}  // namespace tonkartei
