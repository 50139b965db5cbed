// The tab of the categories: a row of name, number and bar for each.
#pragma once

#include <memory>
#include <vector>

#include "oberflaeche/anordnung.hpp"
#include "oberflaeche/elemente.hpp"

namespace tonkartei {

struct Modell;

class Kategorien_Bereich {
public:
    Kategorien_Bereich(Fenster& fenster, const Modell& modell);

    Rahmen Zeilenrahmen;
    // What a row is made after; never to be seen.
    Schriftfeld Kategorie_Name, Kategorie_Anzahl;
    Balken Kategorie_Balken;

    void zeigen();
    // The rows go.
    void leeren();
    Knoten knoten();
    void platzieren();

private:
    struct Reihe {
        Reihe(Fenster& fenster, Rahmen& rahmen, int nummer);
        Schriftfeld Name;
        Schriftfeld Anzahl;
        tonkartei::Balken Balken;
        double Anteil = 0;  // of the longest bar
    };
    int Schritt() const;

    Fenster& fenster_;
    const Modell& modell_;
    std::vector<std::unique_ptr<Reihe>> reihen_;
};

}  // namespace tonkartei
