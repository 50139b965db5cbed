// The player's program on the disk, and the starting of its process.
#pragma once

#include "grundlagen/text.hpp"

namespace tonkartei {

struct Einstellungen;
class Dateisystem;
class Rechner;
class Shell;

class WinAmp_Programm {
public:
    // `Klasse`: of the player's window.
    WinAmp_Programm(Text Klasse, const Einstellungen& einstellungen, Dateisystem& dateien, Shell& shell, Rechner& rechner);

    Text Pfad() const;
    bool WinAmp_existiert() const;
    // Command text: program, the program's own window class, and the parameter if there is one. A player of another class is
    // asked for behind that, as a new one: the last class of a command text counts.
    Text Befehl(const Text& Parameter) const;
    // Starts the process and gives it a second; nobody looks whether it needed it. Dateifehler when it cannot be started.
    void starten(const Text& Parameter);

private:
    const Text Klasse_;
    const Einstellungen& einstellungen_;
    Dateisystem& dateien_;
    Shell& shell_;
    Rechner& rechner_;
};

}  // namespace tonkartei
