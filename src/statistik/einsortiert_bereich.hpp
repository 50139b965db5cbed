// The tab of the growth: the dates of all files, and the line of a year.
#pragma once

#include <vector>

#include "oberflaeche/elementreihe.hpp"
#include "oberflaeche/fortschritt.hpp"
#include "oberflaeche/listen.hpp"
#include "statistik/jahresverlauf.hpp"

namespace tonkartei {

class Dateisystem;
class Rechner;
struct Modell;

class Einsortiert_Bereich {
public:
    Einsortiert_Bereich(Fenster& fenster, const Modell& modell, Dateisystem& dateien, Rechner& rechner,
                        Fortschritts_Fenster& fortschritt);

    Schriftfeld Einsortiert_Jahr_Text;
    Auswahlfeld Einsortiert_Jahr;
    Schriftfeld Einsortiert_Anzahl_Text, Einsortiert_Anzahl;
    Rahmen Zeichenrahmen;
    Bildfläche Einsortiert_Grafik;
    Elementreihe<Schriftfeld, 10> Einsortiert_Y;  // from the bottom up
    Elementreihe<Schriftfeld, Monate> Einsortiert_X, Monat_Anzahl;

    // Asks all files for their dates, and shows the present year if a song came in it.
    void lesen();
    // Nothing is read.
    void leeren();
    // No label is coloured any more.
    void Markierung_löschen() { markieren(0, 0); }
    Knoten knoten();
    // The places that the layout does not tell.
    void platzieren();

private:
    Long Daten_lesen(std::vector<Text>& Jahre);
    void zeichnen();
    void Maus_bei(int x, int y);
    void markieren(int Monat, int Reihe);

    const Modell& modell_;
    Dateisystem& dateien_;
    Rechner& rechner_;
    Fortschritts_Fenster& fortschritt_;
    std::vector<Zeitpunkt> Datei_Datum_;  // of each song
};

}  // namespace tonkartei
