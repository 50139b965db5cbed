// The mouse-over effect of the main window: what is under the mouse gets a colour, and the remote control opens and closes.
#pragma once

#include "oberflaeche/farbe.hpp"

namespace tonkartei {

class Element;
class Fenster;
class Fernsteuerung;
struct Einstellungen;

class Mausmarkierung {
public:
    Mausmarkierung(Fenster& fenster, const Einstellungen& einstellungen, Fernsteuerung& fernsteuerung);

    // Numbers the window's controls and listens to the mouse on them; once, when all of them are there and connected.
    void anschließen();

    // The mouse is on the control of that number, 0 on none. Opening and closing the remote control lets events run, and so
    // the mouse may come to another place meanwhile: that one is noted, and its turn is when this one is done. Thus colours
    // are taken back in the order in which they were given, and the last place of the mouse decides.
    void Mousemove_Effekt(int Nummer);

private:
    void wechseln(int Nummer);
    void entmarkieren(int Nummer);
    void markieren(int Nummer);
    void Fernsteuerung_prüfen(int Nummer);
    Element* Element_mit(int Nummer) const;

    Fenster& fenster_;
    const Einstellungen& einstellungen_;
    Fernsteuerung& fernsteuerung_;
    int letzte_ = 0;  // of the control that has the colour, 0 none
    Farbe vorher_ = Farbe_Standard;
    int neueste_ = 0;
    bool läuft_ = false;
};

}  // namespace tonkartei
