// The four players of the desk: what their controls do, and how a song gets onto them.
#pragma once

#include <array>

#include "dj/spielerfeld.hpp"
#include "dj/spielerprozess.hpp"
#include "mp3/mp3_taghead.hpp"

namespace tonkartei {

class Listen;
class Mischung;
struct Modell;

inline constexpr int Spieler_Anzahl = 4;
using Spielerfelder = Elementreihe<Spielerfeld, Spieler_Anzahl>;

// Events run while a song is loaded, so that a click or a tick may come in the middle of it; a load touches nothing of the
// other players. Songs played here do not count as heard, and nothing of it is written down.
class DJ_Spieler {
public:
    DJ_Spieler(Haus& haus, Wiedergabe& wiedergabe, Spielerfelder& felder, Mischung& mischung, Listen& listen);

    // Starts the four, empty; each takes a second, in which events run. False when the desk was closed meanwhile.
    bool starten();
    // For the opening of the window: colours and volumes.
    void beginnen();
    // Closes all four, in their order; no other is started until the next opening.
    void beenden();

    bool Player_spielt(int Player) const { return felder_[Player].spielt(); }
    // Starts or pauses, whatever the player does just now; it is never stopped. A song that starts leaves both lists.
    void Player_schalten(int Player, bool An);
    // Loading does not start the song.
    void Player_Lied_laden(int Player, Long Nr);
    // False when the desk was closed meanwhile, or another load came in between and is what counts.
    bool Player_Datei_laden(int Player, const Text& Datei);
    // The first song of the playlist, which stays there until it plays; else one by chance.
    void Nächstes_Lied(int Player);
    // Out of the search list; without a song there the player keeps its own.
    void Zufalls_Lied(int Player);
    // The volume of the mix, to the player, playing or not.
    void Player_Lautstärke_anwenden(int Player);
    void Player_Helligkeit_aktualisieren(int Player);
    // Of all players, events running in between.
    void alle_Lautstärken_anwenden();

    // What the tick needs of a player: its time and its position, which it shows. Then whether its song is over.
    struct Zeit {
        Long Länge;     // seconds
        Long Position;  // milliseconds, negative when nothing plays
    };
    Zeit Zeit_zeigen(int Player);
    // The song has ended by itself, or the process is gone: on to the next one, paused.
    void Ende_prüfen(int Player);

private:
    struct Einzelner {
        Spielerprozess prozess;
        Text Datei{};                  // empty until the first load
        Long Sprung = -1;              // where the next tick seeks to, milliseconds; -1 nowhere
        Long Lied = 0;                 // song last loaded by its number; files from outside and copies leave it as it was
        bool Position_Sperre = false;  // the tick moves the slider, not a hand
    };
    Einzelner& Spieler(int Player) { return spieler_.at(static_cast<std::size_t>(Player) - 1); }
    void verbinden(int Player);
    void Ablagen_verbinden(int Player);
    void kopieren(int von, int nach);
    void Dateien_abgelegt(int Player, const std::vector<Text>& pfade);
    void gesprungen(int Player);
    void Ziffern_zeigen(int Player, const Zeit& zeit);
    void Position_zeigen(int Player, const Zeit& zeit);

    const Modell& modell_;
    Ansicht& ansicht_;
    Dateisystem& dateien_;
    Spielerfelder& felder_;
    Mischung& mischung_;
    Listen& listen_;
    MP3_TagHead mp3_;
    bool offen_ = false;
    std::array<Einzelner, Spieler_Anzahl> spieler_;
};

}  // namespace tonkartei
