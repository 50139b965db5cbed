// The start parameters: letters anywhere in the one command line, in any case and order.
#pragma once

#include "grundlagen/text.hpp"

namespace tonkartei {

class Startparameter {
public:
    explicit Startparameter(const Text& Kommandozeile) : zeile_(groß(Kommandozeile)) {}

    // The letters occur, wherever: one that is part of something else counts as well.
    bool hat(std::string_view buchstaben) const { return zeile_.find(buchstaben) != Text::npos; }
    // The digit behind "KS", 0 without one.
    int Parameter_KS() const;

private:
    Text zeile_;
};

// What the menu command tells about them.
Text Parameter_Beschreibung();

}  // namespace tonkartei
