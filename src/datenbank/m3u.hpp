// List files for the player, and read back: the full paths of songs in the collection, one a line, and no other line. What
// else stands in a file that is read, such as a player's comment lines, is passed over.
#pragma once

#include <vector>

#include "datenbank/modell.hpp"
#include "grundlagen/text.hpp"
#include "plattform/kanaele.hpp"

namespace tonkartei {

// The list that is handed to the player. It lies in the player's folder, and each one replaces the one before.
inline constexpr const char* Playlist_Datei_Name = "Tonkartei-Playlist.M3U";

// For the file dialogs of list files.
inline constexpr const char* Playlist_Filter = "WinAmp-Playlist (*.M3U)|*.M3U| Alle Dateien (*.*) |*.*";

// A list file that is being written, line by line; given up when this goes without `fertig`. All failures of the file work
// come out as Dateifehler.
class M3U_Datei {
public:
    // Replaces what the file held.
    M3U_Datei(const Modell& modell, Kanäle& kanäle, const Text& Datei);
    ~M3U_Datei() { kanäle_.aufgeben(nummer_); }
    M3U_Datei(const M3U_Datei&) = delete;
    M3U_Datei& operator=(const M3U_Datei&) = delete;

    // Error 9 for a number that can be no song's.
    void Lied(long long Nr) { kanäle_.schreibe_Rohzeile(nummer_, modell_.Lied_Pfad(Nr)); }
    // Lines wait in a buffer: a full disk may show only here.
    void fertig();

private:
    const Modell& modell_;
    Kanäle& kanäle_;
    int nummer_;  // 0 when done
};

class M3U {
public:
    M3U(const Modell& modell, Kanäle& kanäle) : modell_(modell), kanäle_(kanäle) {}

    void schreiben(const Text& Datei, const std::vector<Long>& Nummern) const;
    // The same; false when the file could not be written.
    bool Playlist_schreiben(const Text& Datei, const std::vector<Long>& Nummern) const;

    struct Inhalt {
        long long Zeilen = 0;       // of every kind
        std::vector<Long> Nummern;  // of the lines that are songs of the open collection; 0 and less where a line says so
    };
    Inhalt lesen(const Text& Datei) const;

private:
    const Modell& modell_;
    Kanäle& kanäle_;
};

}  // namespace tonkartei
