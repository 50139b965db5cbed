// The tab of the listens that were broken off.
#pragma once

#include "oberflaeche/elementreihe.hpp"
#include "statistik/abbruch.hpp"
#include "statistik/liedauswahl.hpp"

namespace tonkartei {

class Dateisystem;

class Abbruch_Bereich {
public:
    Abbruch_Bereich(Fenster& fenster, const Modell& modell, Dateisystem& dateien, Kanäle& kanäle, Liedziel ziel);

    Elementreihe<Optionsfeld, 4> AOption;
    Schriftfeld ASekunden_Text;
    Textfeld ASekunden;
    Liedauswahl Lieder;

    // False, after its box, when the collection has no such file.
    bool lesen();
    void leeren() { statistik_.leeren(); }
    void zeigen(Abbruch_Sicht sicht);
    Knoten knoten();

private:
    Fenster& fenster_;
    const Modell& modell_;
    Dateisystem& dateien_;
    Kanäle& kanäle_;
    Abbruchstatistik statistik_;
    Abbruch_Sicht sicht_ = Abbruch_Sicht::alle;
};

}  // namespace tonkartei
