// What stands in the menu bar: names and captions in their order, all of them, whether there is a command yet or not.
#pragma once

#include <vector>

#include "oberflaeche/menue.hpp"

namespace tonkartei {

std::vector<Menüzeile> Menütafel();
// The menu "Optionen" of it.
Menüzeile Optionen_Tafel();

// Lines of such a table.
inline Menüzeile Eintrag(Text name, Text text, int index = ohne_Index) {
    return {std::move(name), std::move(text), index, nullptr, {}};
}
inline Menüzeile Strich(Text name) { return Eintrag(std::move(name), "-"); }
inline Menüzeile Untermenü(Text name, Text text, std::vector<Menüzeile> einträge) {
    return {std::move(name), std::move(text), ohne_Index, nullptr, std::move(einträge)};
}
// Entries 1, 2, ... of one name.
std::vector<Menüzeile> Reihe(const Text& name, std::initializer_list<const char*> texte);

}  // namespace tonkartei
