// The command that compares the categories of the songs which two collections have in common.
#pragma once

#include "datenbank/modell.hpp"

namespace tonkartei {

class Datenbank_öffnen;
class Fortschritts_Fenster;
class Kategorie_vergleich;
class Quell_Datenbank;

class Kategorieabgleich {
public:
    Kategorieabgleich(const Modell& modell, Datenbank_öffnen& wahl, Quell_Datenbank& leser, Kategorie_vergleich& fenster,
                      Fortschritts_Fenster& fortschritt)
        : modell_(modell), wahl_(wahl), leser_(leser), fenster_(fenster), fortschritt_(fortschritt) {}

    // True when categories may have been changed, so that the list is to be rebuilt.
    bool Kategorie_abgleich();

private:
    bool gleiche_Kategorien(const Bestand& quelle) const;

    const Modell& modell_;
    Datenbank_öffnen& wahl_;
    Quell_Datenbank& leser_;
    Kategorie_vergleich& fenster_;
    Fortschritts_Fenster& fortschritt_;
};

}  // namespace tonkartei
