// The machine and its user on Linux.
#pragma once

#include <optional>
#include <random>

#include "plattform/linux/deskriptor.hpp"
#include "plattform/rechner.hpp"

namespace tonkartei {

class Rechner_Linux : public Rechner {
public:
    // `sperrordner`: where the lock file of the one-instance test lies; by default the user's runtime folder.
    explicit Rechner_Linux(Text sperrordner = {});

    Text GetComputerNameA() override;
    Text GetUserNameA() override;
    // TEMP, TMP, TMPDIR: the first that names a folder; else /tmp.
    Text Temp_Verzeichnis() override;
    Zeitpunkt jetzt() override;
    void Sleep(int ms) override;
    // Holds the lock for as long as this object lives. Where no lock can be had at all, nobody else is assumed.
    bool andere_Instanz_läuft() override;
    // By the signal SIGURG, which kills nobody who does not expect it.
    void andere_Instanz_rufen() override;
    float Zufallszahl() override;
    void Zufall_säen() override;
    Text WinAmp_Vorgabe() override;

private:
    Text sperrordner_;
    Deskriptor sperre_;
    std::optional<bool> andere_läuft_;
    std::mt19937 generator_;
};

// Makes the folder and in it the link WinAmp.Exe to the player. A link that is there is turned to `ziel`, a real file stays.
// False when there is no such link afterwards.
bool WinAmp_Verknüpfung_anlegen(const Text& ordner, const Text& ziel);

}  // namespace tonkartei
