// The window of a player: what it is told and what it says. One that hangs answers nothing, and is as last seen; one that is
// gone, and no window at all, is stopped at position 0.
#pragma once

#include "wiedergabe/winamp/winamp_steuerung.hpp"

namespace tonkartei {

class Spielerfenster {
public:
    explicit Spielerfenster(WinAmp_Steuerung& steuerung) : steuerung_(steuerung) {}

    // 0: none; nothing is sent then. Told by whoever has found or started the player.
    Hwnd Fenster = 0;

    // Status_spielt, Status_Pause, Status_gestoppt.
    Long Status();
    // Milliseconds, negative when nothing plays; seconds, below 1 when nothing is loaded. As the player tells them, which
    // may be anything.
    Long Position();
    Long Länge();

    // Code of WM_COMMAND.
    void Befehl(std::int32_t Code);
    void springen(Long Millisekunden);
    // 0 to 255; what lies outside becomes the nearest of them.
    void Lautstärke(Long Wert);
    void verstecken();
    void zeigen();
    void schließen();

private:
    WinAmp_Steuerung& steuerung_;
    Long Status_ = Status_gestoppt, Position_ = 0, Länge_ = 0;
};

}  // namespace tonkartei
