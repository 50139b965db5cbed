// How the process was called.
#pragma once

#include <vector>

#include "grundlagen/text.hpp"

namespace tonkartei {

// The arguments in UTF-8, for whoever wants them as main has them; the system itself hands them on in its code page.
class Aufruf {
public:
    Aufruf(int argc, char** argv);
    Aufruf(const Aufruf&) = delete;
    Aufruf& operator=(const Aufruf&) = delete;

    int Anzahl;
    char** Argumente;

    // Why the program cannot start on this machine; empty when it can.
    static Text Hindernis() { return {}; }

private:
    std::vector<Text> texte_;
    std::vector<char*> zeiger_;
};

}  // namespace tonkartei
