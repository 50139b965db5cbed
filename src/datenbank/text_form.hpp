// The escaped form of a text, in which it can be read as a value: line feed, carriage return, double quote and comma stand
// as one byte each. A text that holds one of those four bytes (127 to 130) itself does not come back as it was.
#pragma once

#include "grundlagen/text.hpp"

namespace tonkartei {

class Kanäle;

void Text_schreiben(Kanäle& kanäle, int Dateinummer, const Text& text);
// Blanks around the text do not come back: it is a value.
Text Text_lesen(Kanäle& kanäle, int Dateinummer);

}  // namespace tonkartei
