// What the window of new songs hands to the taking over: which files, in which order, and how.
#pragma once

#include <functional>
#include <vector>

#include "grundlagen/text.hpp"
#include "grundlagen/zahl.hpp"

namespace tonkartei {

enum class Übernahmeart : Byte { kopieren = 1, bewegen = 2 };

// Where the songs come from.
inline constexpr Byte Quelle_Dateien = 1;  // files of a folder or of a list file
inline constexpr Byte Quelle_Datenbank = 2;

// A file that was found and is to become a song.
struct Lied_Fund {
    Text Pfad;
    Byte Quell_Kategorie = 0;  // number in the other collection that it comes from; 0 for plain files
};

struct Übernahme_Auftrag {
    Byte Quelle = Quelle_Dateien;
    Übernahmeart Modus = Übernahmeart::kopieren;
    std::vector<Lied_Fund> Lieder;
    double KByte = 0;  // as far as the sizes were read
    bool Album_erstellen = false;
    bool Playlist_erstellen = false;
};

// What goes along with each song once its record stands: the entry of a new album, the line of a list file. Empty: nothing.
struct Begleitung {
    std::function<void(Long i, Long Nr)> Album_Eintrag;  // i counts the new songs from 1
    std::function<void(Long Nr)> Playlist_Zeile;
    std::function<void()> Abschluss;  // closes the list file
};

}  // namespace tonkartei
