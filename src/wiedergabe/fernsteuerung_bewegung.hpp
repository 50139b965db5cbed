// How the remote control's panel comes out of its marker and goes back into it.
#pragma once

#include "oberflaeche/geometrie.hpp"

namespace tonkartei {

class Element;

// The open panel reaches from the left and top of `ecke` to the right and bottom of `marke`, under which it lies when
// closed.
//
// Events run between the steps, so another opening or closing may begin within one. The newest wins: it runs to its end, and
// the older one, back at work, sees that it is no longer the newest and leaves everything as it finds it. So the panel
// always rests open at its place, or hidden.
class Fernsteuerung_Bewegung {
public:
    Fernsteuerung_Bewegung(Element& tafel, const Element& marke, const Element& ecke)
        : tafel_(tafel), marke_(marke), ecke_(ecke) {}

    void öffnen(bool animiert);
    void schließen(bool animiert);
    // To its open place at once, seen or not. A movement under way goes on with its next step.
    void an_offenen_Platz();
    // The window was laid out anew.
    void Lage_nachführen();

private:
    struct Lauf;
    void ziehen(double dX, double dY, int schritt);
    bool zeigen_und_warten(const Lauf& lauf);
    void links_oben(int links, int oben);

    Element& tafel_;
    const Element& marke_;
    const Element& ecke_;
    unsigned neuester_ = 0;  // number of the movement that began last
    int unterwegs_ = 0;      // movements under way, one within the other
};

}  // namespace tonkartei
