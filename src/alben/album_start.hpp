// Hands an album, or other songs in a row, to the player, as a list file.
#pragma once

#include <functional>
#include <vector>

#include "alben/alben.hpp"

namespace tonkartei {

class Ansicht;
class M3U;
struct Einstellungen;
struct Modell;

class Album_Start {
public:
    Album_Start(Modell& modell, const Einstellungen& einstellungen, const Alben& alben, const M3U& m3u, Ansicht& ansicht);

    // Writes the album's songs that the collection has into the list file and starts it. A number below 1 does nothing; no
    // count changes.
    void starte_Album(Long Nr);
    // The same for songs by their numbers.
    void starte_Lieder(const std::vector<Long>& Nummern);

    // The starter of the playing side, given the list file's path.
    std::function<void(const Text& Datei)> starte_WinAmp_Liste = [](const Text&) {};

private:
    Text Datei() const;
    // False after the box that tells why not.
    bool Liste_schreiben(const std::vector<Long>& Nummern);
    std::vector<Long> vorhandene_Lieder(const Album& album) const;

    Modell& modell_;
    const Einstellungen& einstellungen_;
    const Alben& alben_;
    const M3U& m3u_;
    Ansicht& ansicht_;
};

}  // namespace tonkartei
