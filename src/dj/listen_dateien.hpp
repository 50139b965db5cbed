// The list that shows, saved as a list file, or filled from one or from an album.
#pragma once

#include <vector>

#include "grundlagen/text.hpp"
#include "grundlagen/zahl.hpp"

namespace tonkartei {

class Listen;
struct Albenraum;
struct Haus;

class Listen_Dateien {
public:
    Listen_Dateien(Haus& haus, Albenraum& alben, Listen& listen);

    void speichern();
    // The two commands of the menu behind the button "lädt ein Liste".
    void Liste_laden_Playlist();
    void Liste_laden_Album();

    // The plain form: the full paths, no other line. Asks before it replaces a file.
    void Liste_speichern(int Liste, const Text& Datei);
    // Takes the lines that are exactly paths of this collection's songs, and passes over all others without a word. What can
    // be read before a failure counts.
    void Liste_aus_M3U(int Liste, bool Leeren, const Text& Datei);
    // Takes the linked titles of an own album.
    void Liste_aus_Album(int Liste, bool Leeren, Long Album);

private:
    // Whether the songs that the list holds are to go; asks if there are any.
    bool Leeren_erfragen() const;
    void laden(int Liste, bool Leeren, const std::vector<Long>& dazu);
    Long Nummer_aus(std::string_view Zeile) const;

    Haus& haus_;
    Albenraum& alben_;
    Listen& listen_;
};

}  // namespace tonkartei
