// The recycle bin.
#pragma once

#include "grundlagen/text.hpp"

namespace tonkartei {

class Papierkorb {
public:
    virtual ~Papierkorb() = default;

    // Puts a file or folder into the bin, without asking. Dateifehler: 53 not there, 70 or 75 open or refused, others.
    virtual void wegwerfen(const Text& pfad) = 0;
};

}  // namespace tonkartei
