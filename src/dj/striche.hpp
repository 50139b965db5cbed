// Rows of dashes with a text at their right end, as long as the list is wide.
#pragma once

#include "grundlagen/text.hpp"

namespace tonkartei {

class Ansicht;

// The fewest dashes with which "---Text" is at least `Breite` wide; twips, font in points.
int Striche_bis(const Ansicht& ansicht, int Breite, const Text& Text_dahinter, int Schrift);

// How many dashes fit before the text: one less than would reach `Breite`.
int Strich_Anzahl(const Ansicht& ansicht, int Breite, const Text& Text_dahinter, int Schrift);

inline Text Striche(int anzahl) { return Text(static_cast<std::size_t>(anzahl < 0 ? 0 : anzahl), '-'); }

}  // namespace tonkartei
