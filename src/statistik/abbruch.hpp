// Listens that were broken off: after how many seconds, on the average, each song was left.
#pragma once

#include <vector>

#include "datenbank/modell.hpp"
#include "statistik/sortierte_lieder.hpp"

namespace tonkartei {

class Kanäle;

enum class Abbruch_Sicht { alle = 1, unter, über, genau };

class Abbruchstatistik {
public:
    struct Liste {
        Sortierte_Lieder lieder;
        std::vector<Text> zeilen;  // what the user sees of each
    };

    void leeren();
    // Adds up the records of the file. What fails while it is read ends the reading, and what was counted stays; a song
    // number beyond any collection is run-time error 9.
    void lesen(Kanäle& kanäle, const Text& pfad);
    // The songs of the collection, the shortest average first; `x` seconds are what all views but the first compare with.
    Liste auflisten(const Bestand& bestand, Abbruch_Sicht sicht, Long x) const;

private:
    void Satz_zählen(Long Nr, double Sekunden);

    Feld<Long, Lieder_maximal> Abbruch_Summe_, Abbruch_Anzahl_;  // seconds, listens of each song
};

}  // namespace tonkartei
