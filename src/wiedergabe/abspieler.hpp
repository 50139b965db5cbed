// The one way to play a song of the collection: starts it, and counts it if that worked.
#pragma once

#include "grundlagen/zahl.hpp"

namespace tonkartei {

class Spielzählung;
class WinAmp_Starter;
struct Modell;

class Abspieler {
public:
    Abspieler(const Modell& modell, WinAmp_Starter& starter, Spielzählung& zählung)
        : modell_(modell), starter_(starter), zählung_(zählung) {}

    // Nothing without an open collection, whatever list still shows its songs. A song that cannot be started changes
    // nothing.
    void starte_Lied(Long Nr);

private:
    const Modell& modell_;
    WinAmp_Starter& starter_;
    Spielzählung& zählung_;
};

}  // namespace tonkartei
