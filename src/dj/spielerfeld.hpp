// The controls of one player of the desk.
#pragma once

#include "grundlagen/zahl.hpp"
#include "oberflaeche/anordnung.hpp"
#include "oberflaeche/elementreihe.hpp"

namespace tonkartei {

// Whether the player plays is seen from the two buttons that lie on top of each other, and known from nowhere else: the one
// to be seen shows the state, and a click on it changes to the other. At first both are there, which counts as playing.
struct Spielerfeld {
    static constexpr int Reglerweite = 32768;

    Spielerfeld(Fenster& fenster, const char* vorsatz, int n);
    Spielerfeld(const Spielerfeld&) = delete;
    Spielerfeld& operator=(const Spielerfeld&) = delete;

    Rahmen Player_Rahmen;
    Schriftfeld Player_Label, Player_Artist, Player_Titel, Player_Minus;
    Schriftfeld Player_Minuten, Player_Doppelpunkt, Player_Sekunden;
    Regler Player_Position;
    Knopf Player_Taste_Play, Player_Taste_Pause, Player_Taste_Playlist, Player_Taste_Random;
    Knopf Player_Taste_nach1, Player_Taste_nach2, Player_Taste_nach3, Player_Taste_nach4;
    Kasten Player_Auto_1x, Player_Auto_Immer;
    Schriftfeld Player_Auto_Label;
    Regler Player_Lautstärke;

    Knopf& Player_Taste_nach(int k);
    // The frame and everything in it.
    std::vector<Element*> alle();
    Knoten anordnung();
    // In the player's own colours, on the frame's.
    void färben(Farbe eigene);

    bool spielt() const { return Player_Taste_Play.sichtbar(); }
    void zeigen(bool spielt);
    // Percent of the slider, whose 0 is full.
    Long Lautstärke() const;
    void Lautstärke(Long Prozent);
    // 0 to 100: black to almost white.
    void Helligkeit(Long Anteil);
};

}  // namespace tonkartei
