// A new collection made of some songs of the open one, for a backup, for another collector or from the playlist: a
// collection like any other, with the songs' files copied into it.
#pragma once

#include <vector>

#include "datenbank/modell.hpp"

namespace tonkartei {

class DBadd_Kategorien;
class Sitzung;
class neue_Lieder_Liste;

class Auszugsdatenbank {
public:
    Auszugsdatenbank(const Modell& modell, Sitzung& sitzung, DBadd_Kategorien& zuordnung, neue_Lieder_Liste& liste)
        : modell_(modell), sitzung_(sitzung), zuordnung_(zuordnung), liste_(liste) {}

    // The songs come from the collection that is open now, as if it were another one: all of them are told before the new
    // collection takes its place in memory.
    void beginnen();
    void aufnehmen(const Text& Name, const Text& Pfad, Byte Kategorie, Long Größe);
    // The user names the place, the new collection becomes the open one, and the songs are offered for adding as those of
    // another collection are. False: no collection was made.
    bool anlegen();
    // The same with the songs of these numbers. A number beyond the songs names whatever stands there, which has no file and
    // is passed over.
    bool anlegen(const std::vector<Long>& Nummern);

private:
    const Modell& modell_;
    Sitzung& sitzung_;
    DBadd_Kategorien& zuordnung_;
    neue_Lieder_Liste& liste_;
};

}  // namespace tonkartei
