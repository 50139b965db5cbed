// The message layer to the player: one call, one window message. Every call takes the window, so that more than one player
// can be driven. A window that has just closed answers 0, which reads as stopped, at position 0; one that hangs answers
// nothing, and the question gives none.
#pragma once

#include <optional>

#include "grundlagen/zahl.hpp"
#include "plattform/fenstersystem.hpp"

namespace tonkartei {

// What the player is doing, as the program counts it.
inline constexpr Long Status_spielt = 1;
inline constexpr Long Status_Pause = 2;
inline constexpr Long Status_gestoppt = 3;

// Codes of WM_COMMAND.
inline constexpr std::int32_t WinAmp_Code_Play = 40045;
inline constexpr std::int32_t WinAmp_Code_Pause = 40046;  // toggles
inline constexpr std::int32_t WinAmp_Code_Stop = 40047;
inline constexpr std::int32_t WinAmp_Code_zurück = 40144;  // 5 seconds back
inline constexpr std::int32_t WinAmp_Code_vor = 40148;     // 5 seconds on

class WinAmp_Steuerung {
public:
    explicit WinAmp_Steuerung(Fenstersystem& fenstersystem) : system_(fenstersystem) {}

    void WinAmp_Befehl(std::int32_t Code, Hwnd Fenster);
    // 0 to 255; a value outside is clamped, in the caller's variable too.
    void WinAmp_Lautstärke_setzen(Hwnd Fenster, Long& Wert);
    // 1 playing, 2 paused, 3 stopped.
    std::optional<Long> WinAmp_Status_lesen(Hwnd Fenster);
    // Milliseconds.
    std::optional<Long> WinAmp_Position_lesen(Hwnd Fenster);
    // Seconds; below 1 when nothing is loaded.
    std::optional<Long> WinAmp_Länge_lesen(Hwnd Fenster);
    void WinAmp_springen(Hwnd Fenster, Long Millisekunden);
    void Fenster_schließen(Hwnd Fenster);

    // The window of a player that somebody else started; 0 none.
    Hwnd WinAmp_Standard_Fenster();
    void WinAmp_Befehl_Standard(std::int32_t Code);

    // Place and size stay; only what the flags (SWP_...) say changes, and the window is no longer always on top.
    void Fenster_Position_setzen(Hwnd Fenster, std::uint32_t Flags);
    void verstecken(Hwnd Fenster) { Fenster_Position_setzen(Fenster, SWP_HIDEWINDOW | SWP_NOMOVE | SWP_NOSIZE); }
    void zeigen(Hwnd Fenster) { Fenster_Position_setzen(Fenster, SWP_SHOWWINDOW | SWP_NOMOVE | SWP_NOSIZE); }

private:
    Fenstersystem& system_;
};

}  // namespace tonkartei
