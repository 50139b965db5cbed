// Windows, controls and menus as JSON.
#pragma once

#include <memory>
#include <vector>

#include "grundlagen/text.hpp"
#include "oberflaeche/menue.hpp"

namespace tonkartei {

class Ansicht;

// Every line break as "\n".
Text einheitliche_Umbrüche(const Text& text);
// An array of the visible entries with all below them.
Text Menübaum(const std::vector<std::unique_ptr<Menüpunkt>>& einträge);
// An object with the keys that the kind has; `name` as it was asked for.
Text Element_beschreiben(const Element& element, const Text& name);
// An object of a loaded window.
Text Fenster_beschreiben(const Ansicht& ansicht, const Fenster& fenster);

}  // namespace tonkartei
