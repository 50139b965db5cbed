// Fades that move a crossfader by themselves, started by hand or by the time that a song has left.
#pragma once

#include <array>

#include "dj/dj_spieler.hpp"

namespace tonkartei {

struct Fadetafel;

class Überblendung {
public:
    // Milliseconds between two ticks, the grain of every fade.
    static constexpr int Takt_ms = 500;

    Überblendung(Fadetafel& tafel, Mischung& mischung, DJ_Spieler& spieler, Spielerfelder& felder);

    // For the opening of the window: no fade, all crossfaders in the middle.
    void beginnen();
    // Starts a fade; while one runs on that crossfader, either button stops it where it stands.
    void Start_Fade_Klick(int Index);
    // One tick of all fades that run.
    void Schritte_ausführen();
    // Starts the fade away from a player whose time has come.
    void Autozeit_prüfen(int Player, const DJ_Spieler::Zeit& zeit);

private:
    struct Fade {
        bool aktiv = false;
        Long Schritt = 0;  // of the crossfader's value per tick, with its sign
    };
    Fade& Fade_von(int k) { return Fades_.at(static_cast<std::size_t>(k) - 1); }
    void Fade_Schritt_ausführen(int k);
    void ausgeblendet(int Player);
    void Automatik_starten();

    Fadetafel& tafel_;
    Mischung& mischung_;
    DJ_Spieler& spieler_;
    Spielerfelder& felder_;
    std::array<Fade, 3> Fades_;
};

}  // namespace tonkartei
