// The list that slides over another one from below: the titles of the album chosen there.
#pragma once

#include "datenbank/einstellungen.hpp"
#include "oberflaeche/listen.hpp"
#include "plattform/rechner.hpp"

namespace tonkartei {

class Titelliste : public Listenfeld {
public:
    // Lies over the lower four fifths of `liste`.
    Titelliste(Fenster& fenster, Text name, const Listenfeld& liste, const Einstellungen& einstellungen, Rechner& rechner);

    // In and out, in steps by the setting. Nothing moves that is there, or gone, already.
    void hineinfahren();
    void hinausfahren();
    // The other list has another place.
    void Lage_nachführen();

private:
    void ausfahren(int schritt);
    bool bewegt() const;
    void Schritt_zeigen(int schritt);

    const Listenfeld& liste_;
    const Einstellungen& einstellungen_;
    Rechner& rechner_;
};

}  // namespace tonkartei
