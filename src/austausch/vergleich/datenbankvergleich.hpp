// Comparing the open collection with what a comparison file tells of another one.
#pragma once

#include "austausch/vergleichsfenster.hpp"
#include "datenbank/modell.hpp"

namespace tonkartei {

class Vergleichsdatei;
class Vergleichsergebnis;
struct Haus;

class Datenbankvergleich {
public:
    Datenbankvergleich(Haus& haus, Vergleichsdatei& datei, Vergleichsergebnis& fenster)
        : haus_(haus), datei_(datei), fenster_(fenster) {}

    // The menu's command.
    void Datenbank_vergleichen();

private:
    Vergleichsergebnisse vergleichen(int nummer);

    Haus& haus_;
    Vergleichsdatei& datei_;
    Vergleichsergebnis& fenster_;
};

}  // namespace tonkartei
