// Scenes of the whole program, written down as transcripts (protokolle/*.txt): what the hand does, what the program says
// to it word for word, and what is to be seen and on the disk afterwards. protokolle/README.md tells the form.
#pragma once

#include <string>
#include <vector>

namespace tonkartei {

struct Schritt {
    int zeile;                        // in the transcript
    char art;                         // '>' a hand, '?' a look, '!' the scene is set
    std::string text;                 // without its sign
    std::vector<std::string> block;   // lines behind "|"
    std::vector<std::string> danach;  // what the program has to say to it
};

struct Szene {
    std::string datei, name;
    int zeile;
    std::vector<Schritt> schritte;
};

// All scenes of a transcript; std::runtime_error where it cannot be understood.
std::vector<Szene> Szenen_lesen(const std::string& pfad);

}  // namespace tonkartei
