// A player process of a desk: of a window class of its own and hidden, so that the desk is its only face. A song is never
// handed to a running process: a new one takes its place, silent and paused before anyone hears it.
#pragma once

#include "grundlagen/text.hpp"
#include "wiedergabe/winamp/spielerfenster.hpp"

namespace tonkartei {

class Fenstersystem;
class Rechner;
struct Haus;
struct Wiedergabe;

class Spielerprozess {
public:
    Spielerprozess(Text Klasse, Wiedergabe& wiedergabe, Haus& haus);

    Spielerfenster Fenster;

    // With a file, or without one when the path is empty. Takes a second, in which events run. False, and the window as it
    // was, when the player could not be started, of which the user has been told, or was not found.
    bool starten(const Text& Datei);
    // Closes the process and starts the next one, which is paused half a second later, whether it had begun by then or not.
    // Its volume is the one at which the old one was closed, 0. False when another song was loaded meanwhile: that one
    // stays, as the later order, and is left alone.
    bool wechseln(const Text& Datei);
    // With whatever else bears its class.
    void beenden();

private:
    void andere_schließen();

    const Text Klasse_;
    Wiedergabe& wiedergabe_;
    Fenstersystem& system_;
    Rechner& rechner_;
    int Wechsel_ = 0;
};

}  // namespace tonkartei
