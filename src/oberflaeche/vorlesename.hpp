// What a screen reader calls a control: what the eye takes for its name.
#pragma once

#include "grundlagen/text.hpp"

namespace tonkartei {

class Element;

// Its own `Vorlesename`, its caption, the label that belongs to it, its tool-tip, the title of the frame that it alone
// fills or of the window. Empty where nothing says it, and for what has no need of a name (bare
// panels). A label with a value that can be clicked says both.
Text Vorlesename(const Element& element);

}  // namespace tonkartei
