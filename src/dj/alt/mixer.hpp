// The mixer of the older desk: one crossfader between two players, their volumes, and the fades from one to the other.
#pragma once

#include <array>

#include "dj/alt/mischgesetz_alt.hpp"
#include "oberflaeche/elemente.hpp"
#include "oberflaeche/fenster.hpp"
#include "oberflaeche/zeitgeber.hpp"

namespace tonkartei {

class DJ_Liste;
class Spielerpaar;
class Wunschliste;
struct Modell;
struct Titelpaar;

class Mixer : public Fenster {
public:
    Mixer(const Modell& modell, Spielerpaar& spieler, Titelpaar& titel, DJ_Liste& lieder, Wunschliste& wünsche);

    // Player 1 or 2.
    struct Kanal {
        Kanal(Mixer& mixer, int n);
        Knopf Play_Pause, Random;
        Schriftfeld Zeit, Anzeige_Lautstärke;
        Regler Lautstärke;  // reversed: 0 is the loudest
        Kasten Autofade;
        Regler Autofade_Scroll;  // seconds before the end
        Schriftfeld Autofade_Zeit;
        int Autofade_Sekunden = 0;  // as the user chose them; the slider ends with its song, which may be shorter
        bool läuft = false;         // as of the last tick; turned over at once by a click
        bool geladen = false;       // a new song since the player was last paused by a click
    };
    std::array<Kanal, 2> Kanäle{Kanal(*this, 1), Kanal(*this, 2)};
    Kanal& Player(int n) { return Kanäle.at(static_cast<std::size_t>(n) - 1); }

    Regler Crossfade{*this, "Crossfade", 0, Mischgesetz_alt::Maximum};
    Rahmen POF_Platz{*this, "POF_Platz"};
    Balken POF_Warnung_Rot{*this, "POF_Warnung_Rot"}, POF_Warnung_Grün{*this, "POF_Warnung_Grün"};
    Schriftfeld Crossfade_Mitte{*this, "Crossfade_Mitte", "Center"};
    Rahmen Fade_Platz{*this, "Fade_Platz"};
    Knopf Fade_anderes_Lied{*this, "Fade_anderes_Lied", "Fade -->"};
    Kasten Lautstärke_Link{*this, "Lautstärke_Link"};
    Schriftfeld Label_Link{*this, "Label_Link", "Link"};
    Schriftfeld Autofade_speed_Text{*this, "Autofade_speed_Text", "Autofade:"};
    Regler Autofade_speed{*this, "Autofade_speed", 0, 100};
    Schriftfeld Autofade_speed_Label{*this, "Autofade_speed_Label", "7s"};
    Kasten Play_on_fade{*this, "Play_on_fade", "Play on fade"};
    Regler POF_Punkt{*this, "POF_Punkt", 0, 45};
    Kasten Random_after_Autofade{*this, "Random_after_Autofade", "Random nach Autofade"};
    Knopf Neue_Lieder_starten{*this, "Neue_Lieder_starten", "Starte neue..."};
    // Never seen: their pictures are those of the play buttons.
    Knopf Source_Play{*this, "Source_Play"}, Source_Pause{*this, "Source_Pause"};

    // The mix, to both players.
    void Crossfade_Scroll();
    // A song of the collection onto a player; nothing for numbers below 1.
    void Starte_Lied_Nr(int n, Long Nr);
    // What was dragged onto a play button.
    void Play_Pause_DragDrop(int n, const Element& Quelle);

protected:
    Knoten anordnung() override;
    void beim_Laden() override;
    bool beim_Schließen(Schließgrund grund) override { return grund != Schließgrund::Hand; }
    void beim_Entladen() override { Timer_.stellen(Takt_ms, false); }
    void bei_neuer_Anordnung() override;

private:
    static constexpr int Takt_ms = 500;

    Knoten Kanalknoten(int n);
    void verbinden();
    void Kanal_verbinden(int n);
    void Tick();
    void Angebote_zeigen();
    void Startbereich_zeigen();
    void blinken();
    void Zeiten_zeigen();
    void Fade_Schritt();
    void Autofade_prüfen();

    void Play_Pause(int n);
    // Away from that player.
    void Fade_von(int n);
    void Ende_Autofade(int n);
    void Zufalls_Start(int n);
    void neue_Lieder();
    void Lautstärke_geändert(int n);
    void Autofade_Zeit_zeigen(int n);

    const Modell& modell_;
    Spielerpaar& spieler_;
    Titelpaar& titel_;
    DJ_Liste& lieder_;
    Wunschliste& wünsche_;
    Zeitgeber Timer_;
    std::array<long long, 2> Rest_{};  // seconds left, as of this tick; a player may tell any number
    int Fade_weg_von_ = 1;             // the player that the fade now offered leaves
    int Blink_Zähler_ = 0;
    bool Autofade_aktiv_ = false;
    Long Autofade_Tick_ = 0, Autofade_Ticks_ = 0, Autofade_Schritt_ = 0;
};

}  // namespace tonkartei
