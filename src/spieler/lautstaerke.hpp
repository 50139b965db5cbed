// The volume of each window class, kept across runs: one small file a class.
#pragma once

#include <optional>

#include "plattform/dateisystem.hpp"

namespace tonkartei::spieler {

// A name that a folder can hold, made of a class name; different classes give different names.
Text Dateiname_aus_Klasse(const Text& klasse);

class Lautstärkegedächtnis {
public:
    // In an existing folder; empty: there is none, and nothing is remembered. Nothing here throws.
    Lautstärkegedächtnis(Dateisystem& platte, const Text& ordner, const Text& klasse);

    std::optional<int> lesen() const;  // 0 to 255
    void merken(int wert) const;       // the old value or the new one, at every instant

private:
    Dateisystem& platte_;
    Text pfad_;  // empty: none
};

}  // namespace tonkartei::spieler
