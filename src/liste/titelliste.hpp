// The list that slides over another one from below: the titles of the album chosen there.
#pragma once

#include <functional>

#include "datenbank/einstellungen.hpp"
#include "oberflaeche/listen.hpp"

namespace tonkartei {

class Titelliste : public Listenfeld {
public:
    // Lies over the lower four fifths of `liste`.
    Titelliste(Fenster& fenster, Text name, const Listenfeld& liste, const Einstellungen& einstellungen);

    // In and out, in steps by the setting. Nothing moves that is there, or gone, already.
    void hineinfahren();
    void hinausfahren();
    // The other list has another place.
    void Lage_nachführen();

    // Blocks for that many milliseconds.
    std::function<void(int)> Sleep = [](int) {};

private:
    void ausfahren(int schritt);
    bool bewegt() const;
    void Schritt_zeigen(int schritt);

    const Listenfeld& liste_;
    const Einstellungen& einstellungen_;
};

}  // namespace tonkartei
