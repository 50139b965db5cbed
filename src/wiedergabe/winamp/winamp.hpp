// A player of one window class as last seen: its window, what it is doing, whether the program hid it.
#pragma once

#include "wiedergabe/winamp/spielerfenster.hpp"

namespace tonkartei {

struct Einstellungen;
class Fenstersuche;
class Rechner;

// Window class of the program's own player. The search takes it as a part, so it also finds players whose class goes on
// behind it.
inline constexpr const char* WinAmp_Klasse = "Tonkartei";

// The loudest of the volume slider.
inline constexpr Long Lautstärke_maximal = 100;

class WinAmp {
public:
    WinAmp(Text Klasse, Einstellungen& einstellungen, WinAmp_Steuerung& steuerung, Fenstersuche& suche, Rechner& rechner);

    // As of the last look.
    Hwnd WinAmp_Hwnd = 0;
    bool WinAmp_da = false;
    // Keeps its last value while no player is there, or the one that is there hangs. Stopped at first: nothing plays as far
    // as anybody knows, and every reader may rely on one of the three.
    Long WinAmp_Status = Status_gestoppt;
    bool WinAmp_versteckt = false;

    // Looks for the window and at what it does, and hides a newcomer if the user wants it hidden. Lets events run.
    void nachsehen();

    // Before a start: a hidden window comes back, and counts as not hidden whether it did or not.
    void vor_dem_Start();
    // After a start, as soon as the window has been looked for: volume and hiding as the settings say.
    void nach_dem_Start();

    // Code of WM_COMMAND, as long as the player is there; so are all the following.
    void Befehl(std::int32_t Code);
    // To that second of the song. What does not fit the message's milliseconds becomes the nearest that does.
    void springen(double Sekunden);
    // As the player tells them, which may be anything: milliseconds; seconds. Of one that hangs, as last told.
    Long Position();
    Long Länge();

    // The volume slider's value, 0 to 100: to the player if it is there, to the settings in any case.
    void Lautstärke_stellen(Long Wert);

    // The setting "hide" was switched. `WinAmp_versteckt` stays: after a hide the next look sets it, after a show it remains
    // until the next start.
    void Verstecken_umgeschaltet();

    void Hauptfenster_minimiert();
    void Hauptfenster_normal();

    // Lets go of the file it plays, and waits until that is done.
    void für_Dateiarbeit_anhalten();

    // Whatever the rule of the settings says.
    void schließen();

    // Shows a hidden player and closes it as the rule of the settings says.
    void am_Programmende();

private:
    void verstecken();

    const Text Klasse_;
    Einstellungen& einstellungen_;
    Spielerfenster fenster_;
    Fenstersuche& suche_;
    Rechner& rechner_;
};

}  // namespace tonkartei
