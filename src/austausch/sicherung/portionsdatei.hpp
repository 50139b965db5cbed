// *.MBP: the numbers of the songs of one portion of a backup. Good only as long as the collection keeps its numbers.
#pragma once

#include <vector>

#include "austausch/dateikopf.hpp"
#include "grundlagen/text.hpp"
#include "grundlagen/zahl.hpp"

namespace tonkartei {

class Ansicht;
class Kanäle;
struct Modell;

// The number that a value of a list of songs names; error 9 above 5000, where no song can be.
Long Portionsnummer(const Text& wert);
// Error 9 below 1, and at the 5001st: no collection has so many.
void Nummer_aufnehmen(std::vector<Long>& nummern, Long nr);
// What a wrong head is told with, for lists of songs from which a collection is to be made; empty for a good one.
Text Kopfmeldung(Kopffehler fehler, const Text& falsche_Kennung);

class Portionsdatei {
public:
    Portionsdatei(const Modell& modell, Kanäle& kanäle, Ansicht& ansicht)
        : modell_(modell), kanäle_(kanäle), ansicht_(ansicht) {}

    // Replaces the file. Dateifehler.
    void schreiben(const Text& Datei, const std::vector<Long>& Nummern);
    // Its numbers. None when there are none, or when the file is not what it should be, which the user was told.
    std::vector<Long> lesen(const Text& Datei);

private:
    const Modell& modell_;
    Kanäle& kanäle_;
    Ansicht& ansicht_;
};

}  // namespace tonkartei
