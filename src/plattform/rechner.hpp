// The machine and its user: names, clock, chance.
#pragma once

#include "grundlagen/text.hpp"
#include "grundlagen/zeit.hpp"

namespace tonkartei {

class Rechner {
public:
    virtual ~Rechner() = default;

    virtual Text GetComputerNameA() = 0;
    virtual Text GetUserNameA() = 0;
    // Temporary folder: TEMP, else TMP, else the program's; with trailing separator.
    virtual Text Temp_Verzeichnis() = 0;
    // Local wall clock.
    virtual Zeitpunkt jetzt() = 0;
    // Blocks for that many milliseconds.
    virtual void Sleep(int ms) = 0;
    // True when another instance of the program runs. The answer of the first call holds for the process.
    virtual bool andere_Instanz_läuft() = 0;
    // Asks that other one to show itself; nothing where it can't be reached.
    virtual void andere_Instanz_rufen() {}
    // Next value of the generator, in single precision, 0 <= r < 1; and seeding from the clock.
    virtual float Zufallszahl() = 0;
    virtual void Zufall_säen() = 0;
    // Default of the setting for the player's folder, with trailing separator.
    virtual Text WinAmp_Vorgabe() = 0;
};

}  // namespace tonkartei
