// The panel with the songs of the older desk, out of which players and wish list are fed.
#pragma once

#include "dj/liedsuche.hpp"
#include "oberflaeche/elemente.hpp"
#include "oberflaeche/fenster.hpp"
#include "oberflaeche/listen.hpp"

namespace tonkartei {

class DJ_Kategorien;
class Rechner;

class DJ_Liste : public Fenster {
public:
    // Built anew whenever the boxes of `kategorien` change.
    DJ_Liste(Ansicht& ansicht, const Modell& modell, DJ_Kategorien& kategorien, Rechner& rechner);

    Schriftfeld Schnellsuche_Text{*this, "Schnellsuche_Text", "Schnells&uche:"};
    Textfeld Schnellsuche{*this, "Schnellsuche"};
    Listenfeld Liste{*this, "Liste"};
    // Side by side with Liste: the numbers of the songs, four digits each.
    Listenfeld Nr_Liste{*this, "Nr_Liste"};

    void erstelle_Liste();
    // Of the chosen line; 0 without one.
    Long gewähltes_Lied() const;
    // Evenly out of all lines; 0 when there is none.
    Long Zufalls_Nr();

protected:
    Knoten anordnung() override;
    void beim_Laden() override;
    bool beim_Schließen(Schließgrund grund) override { return grund != Schließgrund::Hand; }

private:
    const Modell& modell_;
    DJ_Kategorien& kategorien_;
    Rechner& rechner_;
    Liedsuche suche_;
};

}  // namespace tonkartei
