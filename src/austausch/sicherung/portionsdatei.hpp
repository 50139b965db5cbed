// *.MBP: the numbers of the songs of one portion of a backup. Good only as long as the collection keeps its numbers.
#pragma once

#include "austausch/nummerndatei.hpp"

namespace tonkartei {

class Portionsdatei {
public:
    Portionsdatei(const Modell& modell, Kanäle& kanäle, Ansicht& ansicht);

    // Replaces the file. Dateifehler.
    void schreiben(const Text& Datei, const std::vector<Long>& Nummern);
    // Its numbers. None when there are none, or when the file is not what it should be, which the user was told.
    std::vector<Long> lesen(const Text& Datei);

private:
    Kanäle& kanäle_;
    Nummerndatei datei_;
};

}  // namespace tonkartei
