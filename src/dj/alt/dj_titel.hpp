// The panel with the song of one player of the older desk.
#pragma once

#include "oberflaeche/elemente.hpp"
#include "oberflaeche/fenster.hpp"
#include "plattform/rechner.hpp"
#include "wiedergabe/griff.hpp"

namespace tonkartei {

class Spielerfenster;
struct Lied;

class DJ_Titel : public Fenster {
public:
    // 1 or 2: its name, and whose song it shows.
    DJ_Titel(Ansicht& ansicht, int nummer, Spielerfenster& spieler, Rechner& rechner);

    Rahmen Titel_Platz{*this, "Titel_Platz"}, Artist_Platz{*this, "Artist_Platz"};
    Schriftfeld Titel{*this, "Titel"};
    Schriftfeld Artist{*this, "Artist"};
    // Seconds.
    Regler WinAmp_Position{*this, "WinAmp_Position", 0, 1};

    void zeigen_Lied(const Lied& lied);
    // The user holds the slider: the tick leaves it alone.
    bool Winamp_Scrolling() const { return griff_.gehalten(); }

protected:
    Knoten anordnung() override;
    bool beim_Schließen(Schließgrund grund) override { return grund != Schließgrund::Hand; }
    void bei_neuer_Anordnung() override;

private:
    int passende_Schrift(const Bereich& platz) const;

    Spielerfenster& spieler_;
    Rechner& rechner_;
    Griff griff_;
};

}  // namespace tonkartei
