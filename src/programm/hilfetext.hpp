// What "tonkartei --help" tells; the menu has the start parameters alone (Parameter_Beschreibung).
#pragma once

#include "grundlagen/text.hpp"

namespace tonkartei {

Text Hilfetext();

}  // namespace tonkartei
