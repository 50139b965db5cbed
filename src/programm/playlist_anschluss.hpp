// What joins the window `Playlist` to the rest: the main window's ways of filling it, its life beside the main window, and
// what it hands on.
#pragma once

#include "grundlagen/zahl.hpp"
#include "oberflaeche/geometrie.hpp"
#include "programm/programm.hpp"

namespace tonkartei {

class Element;
class Fenster;
class Playlist;

class Playlist_Anschluss {
public:
    explicit Playlist_Anschluss(Programm::Teile& teile) : t_(teile) {}

    // Once, when all parts are there.
    void verbinden();
    // As the setting says, once the main window is up.
    void beim_Start();

    void zeige_Playlist();
    void zentriere_Playlist();
    void Menü_add_to_Playlist();
    void Lieder_add_to_Playlist();
    // Songs of the collection have changed.
    void aktualisieren();

private:
    void add_to_Playlist(Long Nr);
    void folgen();
    Long gezogenes_Lied(const Element& quelle) const;
    void Datenbank_anlegen();

    Programm::Teile& t_;
};

// Half the main window's size, in the middle of the screen.
Bereich zentrierte_Playlist(const Fenster& haupt);

}  // namespace tonkartei
