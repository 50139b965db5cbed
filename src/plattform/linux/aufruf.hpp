// How the process was called.
#pragma once

#include "grundlagen/text.hpp"

namespace tonkartei {

struct Aufruf {
    Aufruf(int argc, char** argv) : Anzahl(argc), Argumente(argv) {}

    int Anzahl;
    char** Argumente;

    // Why the program cannot start on this machine; empty when it can.
    static Text Hindernis();
};

}  // namespace tonkartei
