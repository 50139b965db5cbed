// The commands that mend and look through the whole collection: re-reading, twins, songs from a date on, the mean count.
#pragma once

#include "datenbank/haus.hpp"
#include "lieder/wartung/datum_eingeben.hpp"
#include "lieder/wartung/neueinlesen.hpp"
#include "lieder/wartung/zwillinge.hpp"
#include "liste/listenbereich.hpp"

namespace tonkartei {

// "2,5": at most one decimal, without the 0 on either side of the comma, which stays: ",3", "3,", ",".
Text Mittelwert_Text(double wert);

class Wartung {
public:
    Wartung(Haus& haus, Neueinlesen& einlesen, Datum_eingeben& datum, Listenbereich& liste)
        : modell_(haus.modell),
          dateien_(haus.plattform.Dateisystem),
          fortschritt_(haus.fortschritt),
          einlesen_(einlesen),
          datum_(datum),
          liste_(liste) {}

    void Lieder_Namen_einlesen();
    void Liste_einlesen();
    void doppelte_anzeigen(Zwillingsart Art);
    void Durchschnitts_Anzahl();
    void Lieder_ab_Datum();

private:
    void zeigen(const std::vector<long long>& nummern);
    Ansicht& ansicht() const { return fortschritt_.ansicht(); }

    Modell& modell_;
    Dateisystem& dateien_;
    Fortschritts_Fenster& fortschritt_;
    Neueinlesen& einlesen_;
    Datum_eingeben& datum_;
    Listenbereich& liste_;
};

}  // namespace tonkartei
