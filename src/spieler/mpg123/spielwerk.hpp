// What plays: a song, decoded piece by piece, and the output that it goes to. Lives on a thread of its own, where it may
// wait for the disk.
#pragma once

#include <optional>
#include <vector>

#include "spieler/mpg123/mp3_strom.hpp"
#include "spieler/mpg123/tonausgabe.hpp"

namespace tonkartei::spieler {

class Spielwerk {
public:
    // `stumm`: plays into nothing even if there is a device.
    Spielwerk(Dateisystem& platte, bool stumm) : platte_(platte), stumm_(stumm) {}

    // Takes up a song instead of the one it has. False when it cannot be played.
    bool laden(const Text& datei);
    // Lets go of file and device.
    void stoppen();
    void springen(std::int64_t ms);
    void anhalten(bool angehalten);
    void Lautstärke_setzen(int wert);  // 0 to 255

    // Fills the output. False when all of the song was heard.
    bool weiter();
    std::int64_t Position();  // ms, of what is heard
    std::optional<double> Länge() const { return lied_->Länge(); }

private:
    void Ausgabe_bereiten();
    void Block_füllen();

    Dateisystem& platte_;
    const bool stumm_;
    std::optional<Mp3_Strom> lied_;
    std::unique_ptr<Tonausgabe> ausgabe_;
    std::vector<std::int16_t> block_;
    std::int64_t beginn_ = 0;       // ms: where in the song the output began to count
    std::int64_t geschrieben_ = 0;  // frames since then
    bool ausgelesen_ = false, andere_Rate_ = false, angehalten_ = false;
    double anteil_ = 1;  // of the full amplitude
};

}  // namespace tonkartei::spieler
