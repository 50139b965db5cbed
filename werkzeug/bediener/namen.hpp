// Windows and controls by their names, and what a hand can do with them.
#pragma once

#include "grundlagen/text.hpp"

namespace tonkartei {

class Ansicht;
class Element;
class Fenster;

// For looking: loaded or not, hidden or not. Befehlsfehler when there is none.
Fenster& Fenster_suchen(const Ansicht& ansicht, const Text& name);
// "Fenster.Element(n)". Without a window's name: of the frontmost loaded window that has it.
Element& Element_suchen(const Ansicht& ansicht, const Text& name);
bool ist_Fenstername(const Ansicht& ansicht, const Text& name);

// Befehlsfehler when a hand cannot work it now.
void bedienbar_prüfen(const Ansicht& ansicht, const Fenster& fenster);
void bedienbar_prüfen(const Ansicht& ansicht, Element& element);
// The same for what only needs to be seen, such as moving the mouse over it.
void sichtbar_prüfen(const Ansicht& ansicht, Element& element);

}  // namespace tonkartei
