// What the files of song numbers share, *.MBP and *.MAD: the head, its boxes, and which numbers there can be.
#pragma once

#include <functional>
#include <vector>

#include "grundlagen/text.hpp"
#include "grundlagen/zahl.hpp"

namespace tonkartei {

class Ansicht;
class Kanäle;
struct Modell;

// The number that a value of a list of songs names; error 9 above 5000, where no song can be.
Long Liednummer(const Text& wert);
// Error 9 below 1, and at the 5001st: no collection has so many.
void Nummer_aufnehmen(std::vector<Long>& nummern, Long nr);

class Nummerndatei {
public:
    struct Art {
        const char* Kennung;          // third line of the head
        const char* falsche_Kennung;  // what a file of another kind is told with
        const char* Lesetitel;        // caption of every box at reading
    };

    Nummerndatei(const Modell& modell, Kanäle& kanäle, Ansicht& ansicht, Art art)
        : modell_(modell), kanäle_(kanäle), ansicht_(ansicht), art_(art) {}

    // Replaces the file: the head, then what `Rest` writes to the channel it is given. Dateifehler.
    void schreiben(const Text& Datei, const std::function<void(int)>& Rest);
    // The numbers that `Rest` takes in from behind the head. None when there are none, or when the file is not what it
    // should be, which the user was told; a Laufzeitfehler of `Rest` makes it a file of another kind.
    std::vector<Long> lesen(const Text& Datei, const std::function<void(int, std::vector<Long>&)>& Rest);

private:
    const Modell& modell_;
    Kanäle& kanäle_;
    Ansicht& ansicht_;
    Art art_;
};

}  // namespace tonkartei
