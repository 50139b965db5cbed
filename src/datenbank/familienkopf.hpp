// The head of the files that lie beside the info file and go along with its versions (albums, ignore list): three lines,
// and the questions about a file of another version.
#pragma once

#include "grundlagen/text.hpp"

namespace tonkartei {

class Ansicht;
class Kanäle;

// What one kind of file is called in the boxes, and how it is told.
struct Familienkopf {
    Text Kennung;        // third line
    Text Name_mit_Pfad;  // "Die Ignorieren-Liste (/pfad)"
    Text Name;           // "Die Ignorieren-Liste"
    Text Frage;          // "Soll die Ignorieren-Liste geöffnet und konvertiert werden?"
    bool (*alte_Version)(const Text& version);
};

enum class Kopfurteil {
    aktuell,
    alt,        // the user wants it read; the next save writes the present form
    abgelehnt,  // declined, or damaged, which was told
    // The user wants an unknown version to be tried. It cannot be: the file counts as closed for the reading that follows,
    // and always has.
    unlesbar,
};

// Reads the head from an open channel and asks what there is to ask. Dateifehler.
Kopfurteil Kopf_beurteilen(Ansicht& ansicht, Kanäle& kanäle, int Dateinummer, const Text& Programmversion,
                           const Familienkopf& kopf);

}  // namespace tonkartei
