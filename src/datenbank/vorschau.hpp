// What a collection holds, read from its info file without opening it.
#pragma once

#include <optional>

#include "grundlagen/text.hpp"

namespace tonkartei {

class Dateisystem;
class Kanäle;

struct Datenbank_Vorschau {
    long long Lieder = 0;
    int Kategorien = 0;
    long long KByte = 0;
    long long Sekunden = 0;
};

// None when the file cannot be read, or its head is not exactly this version's: a preview converts nothing.
std::optional<Datenbank_Vorschau> lese_Vorschau(Kanäle& kanäle, const Text& Datei, const Text& Programmversion);

// The line that tells about a folder, whatever its state.
Text Vorschau_Text(Kanäle& kanäle, Dateisystem& dateien, const Text& Verzeichnis, const Text& Programmversion);

}  // namespace tonkartei
