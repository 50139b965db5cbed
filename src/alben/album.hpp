// Albums in memory: named, ordered lists of titles, of which the collection may have some.
#pragma once

#include "grundlagen/feld.hpp"
#include "grundlagen/text.hpp"
#include "grundlagen/zahl.hpp"
#include "grundlagen/zeit.hpp"

namespace tonkartei {

inline constexpr int Alben_maximal = 5000;
inline constexpr int Album_Titel_maximal = 200;

struct Album_Lied {
    Text Artist;
    Text Titel;
    tonkartei::Zeit Zeit = 0;   // length as a time of day
    bool in_Datenbank = false;  // linked to a song of the open collection
    Long Lied_Nr = 0;           // that song, where linked
};

// The titles of an album, at the positions 1 to 200; error 9 outside. Memory comes by eights on the first writing access:
// an album without titles costs one pointer, and the usual dozen does not pay for two hundred.
class Album_Lieder {
public:
    Album_Lied& operator[](long long stelle) { return gruppen_[Gruppe(stelle)][Platz(stelle)]; }
    const Album_Lied& operator[](long long stelle) const { return gruppen_[Gruppe(stelle)][Platz(stelle)]; }
    void leeren() { gruppen_.leeren(); }

private:
    static constexpr int Gruppengröße = 8;
    static constexpr long long Gruppe(long long stelle) { return (stelle - 1) / Gruppengröße + 1; }
    static constexpr long long Platz(long long stelle) { return (stelle - 1) % Gruppengröße + 1; }

    Feld<Feld<Album_Lied, Gruppengröße>, Album_Titel_maximal / Gruppengröße> gruppen_;
};

struct Album {
    Text Interpret;
    Text Titel;
    Long Jahr = 0;
    bool Maxi_CD = false;
    Byte Titel_Anzahl = 0;  // 0 to 200
    Album_Lieder Lieder;
};

// A store of albums: those of the open collection, or those of another one while they are imported.
struct Albenbestand {
    Long Anzahl = 0;
    Feld<Album, Alben_maximal> Alben;
};

}  // namespace tonkartei
