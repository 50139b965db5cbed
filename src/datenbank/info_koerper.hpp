// The body of an info file, behind its two head lines: categories, schemes, backup limit and songs, one value a line. Reader
// and writer mirror each other; neither shows a box.
#pragma once

#include <functional>

#include "datenbank/modell.hpp"

namespace tonkartei {

class Kanäle;

// Told after each song: its number and how many there are. May be empty.
using Liedzähler = std::function<void(Long Nr, Long Anzahl)>;

// From a channel that stands behind the head, whatever collection it belongs to. A count of songs below 1 means none. A
// category number that the file has no category for comes as it is. Dateifehler 62 when the file ends too soon; errors 6
// and 9 for numbers that cannot be.
void Info_Körper_lesen(Kanäle& kanäle, int nummer, Bestand& bestand, const Liedzähler& je_Lied);
void Info_Körper_schreiben(Kanäle& kanäle, int nummer, const Bestand& bestand, const Liedzähler& je_Lied);

// The lines with which every file of the family begins: the program's title, its version and, unless it is an info file,
// what kind of file it is.
void Familienkopf_schreiben(Kanäle& kanäle, int nummer, const Text& Programmversion, const Text& Kennung = {});

// The song's category is one that the collection has.
inline bool Kategorie_bekannt(const Bestand& bestand, Byte kategorie) {
    return kategorie >= 1 && kategorie <= bestand.Anzahl_Kategorien;
}

}  // namespace tonkartei
