// Which song of the open collection a song of another one is compared with, and how alike the two are.
#pragma once

#include <map>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "datenbank/modell.hpp"

namespace tonkartei {

class Dateisystem;
class Fortschritts_Fenster;

// The file dates of the own songs by number (place 0 is number 1), read under the progress window. A song without a file:
// Dateifehler 53, or, with `Fehlende_erlaubt`, no date, which is a date like others.
std::vector<Zeitpunkt> eigene_Dateizeiten(const Modell& modell, Dateisystem& dateien, Fortschritts_Fenster& fortschritt,
                                          bool Fehlende_erlaubt);

// The own songs by what decides about likeness. Compares as a search through them in the order of their numbers would that
// ends at the first one that is alike at all: a later one that is more alike is not seen.
class Liedvergleich {
public:
    struct Treffer {
        Long Nr = 0;   // one above the last own song when none is alike
        int Grad = 0;  // 0 missing, 1 changed, 2 the same
    };

    // Refers to the songs' texts: good as long as they stay.
    Liedvergleich(const Bestand& eigene, const std::vector<Zeitpunkt>& daten);

    Treffer vergleichen(std::string_view Artist, std::string_view Titel, Long Größe, const Zeitpunkt& Datum) const;

private:
    using Name = std::pair<std::string_view, std::string_view>;
    using Datei = std::pair<Long, Zeitpunkt>;

    const Bestand& eigene_;
    const std::vector<Zeitpunkt>& daten_;
    std::map<Name, Long> nach_Namen_;  // the first number of each
    std::map<Datei, Long> nach_Datei_;
};

}  // namespace tonkartei
