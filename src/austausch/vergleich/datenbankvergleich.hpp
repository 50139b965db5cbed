// Comparing the open collection with what a comparison file tells of another one.
#pragma once

#include "austausch/vergleichsfenster.hpp"
#include "datenbank/modell.hpp"

namespace tonkartei {

class Dateisystem;
class Fortschritts_Fenster;
class Kanäle;
class Vergleichsdatei;
class Vergleichsergebnis;

class Datenbankvergleich {
public:
    Datenbankvergleich(const Modell& modell, Kanäle& kanäle, Dateisystem& dateien, Vergleichsdatei& datei,
                       Vergleichsergebnis& fenster)
        : modell_(modell), kanäle_(kanäle), dateien_(dateien), datei_(datei), fenster_(fenster) {}

    // The menu's command.
    void Datenbank_vergleichen(Fortschritts_Fenster& fortschritt);

private:
    Vergleichsergebnisse vergleichen(int nummer, Fortschritts_Fenster& fortschritt);

    const Modell& modell_;
    Kanäle& kanäle_;
    Dateisystem& dateien_;
    Vergleichsdatei& datei_;
    Vergleichsergebnis& fenster_;
};

}  // namespace tonkartei
