// What a hand does to a control, alike for every view and for the operator: the events in their order, the usual effects of
// keys. All of it assumes that the control can be worked; callers test that.
#pragma once

#include <vector>

#include "oberflaeche/element.hpp"

namespace tonkartei::Hand {

// Press, release, click; x and y in twips in the control.
void klicken(Element& element, int x = 0, int y = 0);
void doppelklicken(Element& element, int x = 0, int y = 0);
void drücken(Element& element, int x, int y);
void loslassen(Element& element, int x, int y);
// On a line of a list it does not choose the line.
void rechtsklicken(Element& element, int zeile);
// Clicks a line of a list or combo, or a tab; -1 takes a list's choice away.
void wählen(Element& element, int zeile);
// Types a whole text into a text field, character by character where handlers listen to keys.
void schreiben(Element& element, const Text& text);
// Moves a slider, or works an up-down switch.
void schieben(Element& element, int wert);
// A key while the control has the focus: its handlers first, then the usual effect (Return and Escape press the window's
// default and cancel button, arrows move a choice, Alt+x an access key, characters go into text fields).
void Taste_drücken(Element& element, Taste taste);
// The mouse moves over the control; one that is disabled is like the free ground around it.
void Maus_bewegen(Element& element, int x = 0, int y = 0);
void ablegen(Element& quelle, Element& ziel);
void Dateien_ablegen(Element& ziel, const std::vector<Text>& pfade);
// The control that an access key of the window's captions means, or null.
Element* Zugriffstaste(Fenster& fenster, const Text& zeichen);
// The next control of the tab order.
Element* nächster_Fokus(Element& element);

}  // namespace tonkartei::Hand
