// Hands an album to the player, as a list file.
#pragma once

#include <functional>

#include "alben/alben.hpp"

namespace tonkartei {

class Ansicht;
class Kanäle;
struct Einstellungen;
struct Modell;

// Lies in the player's folder; each list that is handed over replaces the one before.
inline constexpr const char* Playlist_Datei_Name = "Tonkartei-Playlist.M3U";

class Album_Start {
public:
    Album_Start(Modell& modell, const Einstellungen& einstellungen, const Alben& alben, Kanäle& kanäle, Ansicht& ansicht);

    // Writes the album's songs that the collection has into the list file and starts it. A number below 1 does nothing; no
    // count changes.
    void starte_Album(Long Nr);

    // The starter of the playing side, given the list file's path.
    std::function<void(const Text& Datei)> starte_WinAmp_Liste = [](const Text&) {};

private:
    int Liste_schreiben(const Text& datei, const Album& album);

    Modell& modell_;
    const Einstellungen& einstellungen_;
    const Alben& alben_;
    Kanäle& kanäle_;
    Ansicht& ansicht_;
};

}  // namespace tonkartei
