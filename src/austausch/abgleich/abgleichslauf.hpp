// The command of a live comparison: reads the other collection and compares its songs with the own ones.
#pragma once

#include "austausch/vergleichsfenster.hpp"
#include "datenbank/modell.hpp"

namespace tonkartei {

class Dateisystem;
class Fortschritts_Fenster;
class Live_abgleich;
class Quell_Datenbank;
struct Abgleichsquelle;

class Abgleichslauf {
public:
    Abgleichslauf(const Modell& modell, Dateisystem& dateien, Fortschritts_Fenster& fortschritt, Quell_Datenbank& leser,
                  Live_abgleich& fenster)
        : modell_(modell), dateien_(dateien), fortschritt_(fortschritt), leser_(leser), fenster_(fenster) {}

    void Menü_Live_abgleich();

private:
    bool wählen(Text& Ordner);
    Vergleichsergebnisse vergleichen(const Abgleichsquelle& quelle);

    const Modell& modell_;
    Dateisystem& dateien_;
    Fortschritts_Fenster& fortschritt_;
    Quell_Datenbank& leser_;
    Live_abgleich& fenster_;
};

}  // namespace tonkartei
