// The commands of the operator, by their first words.
#pragma once

#include <functional>
#include <map>

#include "bediener/befehlszeile.hpp"
#include "oberflaeche/element.hpp"

namespace tonkartei {

class Ansicht_Bediener;
class Fenster;
class Menüpunkt;
struct Eingabefeld;
struct Maschine;
struct Meldungsfeld;

using Befehlstafel = std::map<Text, std::function<void(Befehlszeile&)>>;
// Save a picture of a window, or of the menu below an entry; false when that fails. Empty without a toolkit.
struct Bildspeicher {
    std::function<bool(Fenster&, const Text&)> fenster;
    std::function<bool(const Menüpunkt&, const Text&)> menü;
    std::function<bool(const Meldungsfeld&, const Text&)> meldung;
    std::function<bool(const Eingabefeld&, const Text&)> eingabe;
};

// What the hand does.
void Handbefehle_eintragen(Befehlstafel& tafel, Ansicht_Bediener& ansicht);
// Answers to boxes.
void Antwortbefehle_eintragen(Befehlstafel& tafel, Ansicht_Bediener& ansicht, Maschine& maschine);
void Schaubefehle_eintragen(Befehlstafel& tafel, Ansicht_Bediener& ansicht, Maschine& maschine, Bildspeicher bild);
// Time, chance, and what happens around the program.
void Szenenbefehle_eintragen(Befehlstafel& tafel, Ansicht_Bediener& ansicht, Maschine& maschine);

// A key by its name: "Return", "Alt+x", or one character.
Taste Taste_von(const Text& name);

}  // namespace tonkartei
