// The tab of the counts.
#pragma once

#include "oberflaeche/elementreihe.hpp"
#include "statistik/gehoert.hpp"
#include "statistik/liedauswahl.hpp"

namespace tonkartei {

class Gehört_Bereich {
public:
    Gehört_Bereich(Fenster& fenster, const Modell& modell, Liedziel ziel);

    Elementreihe<Optionsfeld, 3> Option;
    Textfeld Anzahl_gespielt;
    Liedauswahl Lieder;
    Schriftfeld Liste_Anzahl_Text, Liste_Anzahl, Liste_Durchschnitt_Text, Liste_Durchschnitt, Insgesamt_gehört_Text,
        Insgesamt_gehört;

    void zeigen(Gehört_Sicht sicht);
    Knoten knoten();

private:
    const Modell& modell_;
    Gehört_Sicht sicht_ = Gehört_Sicht::meiste;
};

}  // namespace tonkartei
