// A list of seldom-heard songs, by the rule of the random choice: for the playlist window, or at once for the player.
#pragma once

#include <vector>

#include "grundlagen/ereignis.hpp"
#include "grundlagen/text.hpp"
#include "grundlagen/zahl.hpp"

namespace tonkartei {

class Album_Start;
class Ansicht;
class Listenbereich;
class Rechner;
struct Einstellungen;
struct Haus;
struct Modell;

class Zufalls_Playlist {
public:
    Zufalls_Playlist(Haus& haus, Listenbereich& lieder, Album_Start& start);

    // The whole command, with its questions.
    void erstellen();

    // Opens the playlist window and empties it, if the user lets it: what he keeps there stays in front of the new songs.
    Ereignis<> Playlist_leeren;
    Ereignis<const std::vector<Long>&> in_Playlist;

private:
    // How many songs the user wants, at most `vorhanden`; below 1: none.
    Long Menge_erfragen(int vorhanden);

    Modell& modell_;
    const Einstellungen& einstellungen_;
    Rechner& rechner_;
    Ansicht& ansicht_;
    Listenbereich& lieder_;
    Album_Start& start_;
};

}  // namespace tonkartei
