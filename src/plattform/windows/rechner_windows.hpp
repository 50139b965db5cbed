// The machine and its user.
#pragma once

#include <optional>
#include <random>

#include "plattform/rechner.hpp"
#include "plattform/windows/systemgriff.hpp"

namespace tonkartei {

class Rechner_Windows : public Rechner {
public:
    // `name`: of the one-instance test, for machines that are tried out; by default the user's session has one.
    explicit Rechner_Windows(Text name = {});

    Text GetComputerNameA() override;
    Text GetUserNameA() override;
    Text Temp_Verzeichnis() override;
    Zeitpunkt jetzt() override;
    void Sleep(int ms) override;
    // Holds a named object for as long as this object lives. Where none can be had, nobody else is assumed.
    bool andere_Instanz_läuft() override;
    float Zufallszahl() override;
    void Zufall_säen() override;
    // C:\Programme\WinAmp\. When there is no player, the first that has one: the folder of installed programs, the program's
    // own.
    Text WinAmp_Vorgabe() override;

private:
    Text name_;
    Systemgriff sperre_;
    std::optional<bool> andere_läuft_;
    std::mt19937 generator_;
};

// The running program with its full path.
Text Programmpfad();

}  // namespace tonkartei
