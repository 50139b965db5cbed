// The program put together: owns the state and the parts, connects them.
#pragma once

#include <memory>

#include "grundlagen/text.hpp"
#include "plattform/plattform.hpp"

namespace tonkartei {

class Ansicht;

class Programm {
public:
    // The command line holds the program's own start parameters only, written together.
    Programm(const Plattform& plattform, Ansicht& ansicht, const Text& Kommandozeile);
    ~Programm();

    // The start sequence, up to the shown main window with its collection. Afterwards the view's main loop runs until
    // `Ansicht::endet`. To be called under `Ansicht::ausführen`.
    void starten();
    // Another start of the program has asked for the one that runs: its window comes to the front.
    void gerufen();

    struct Teile;

private:
    std::unique_ptr<Teile> teile_;
};

}  // namespace tonkartei
