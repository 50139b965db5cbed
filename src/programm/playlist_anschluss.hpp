// What joins the window `Playlist` to the main window: the ways of filling it, and its life beside that one.
#pragma once

#include "grundlagen/zahl.hpp"
#include "oberflaeche/geometrie.hpp"

namespace tonkartei {

class Fenster;
class Playlist;
class Tonkartei;
struct Haus;

class Playlist_Anschluss {
public:
    Playlist_Anschluss(Haus& haus, Playlist& playlist, Tonkartei& fenster);

    // As the setting says, once the main window is up.
    void beim_Start();

private:
    void Knöpfe_anschließen();
    void Menü_anschließen();
    void zeige_Playlist();
    void Lieder_add_to_Playlist();
    void add_to_Playlist(Long Nr);
    void folgen();

    Haus& haus_;
    Playlist& playlist_;
    Tonkartei& fenster_;
};

// Half the main window's size, in the middle of the screen.
Bereich zentrierte_Playlist(const Fenster& haupt);

}  // namespace tonkartei
