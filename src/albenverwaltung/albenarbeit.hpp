// What the album manager does with the rest of the program: songs of the main window, player, playlist, and its questions.
#pragma once

#include <optional>
#include <vector>

#include "alben/alben.hpp"

namespace tonkartei {

class Abspieler;
class Album_Start;
class Ansicht;
class Element;
class Fortschritts_Fenster;
class Listenbereich;
class Playlist;
struct Modell;

class Albenarbeit {
public:
    // The windows and parts that it hands songs to or takes songs from.
    struct Nachbarn {
        Listenbereich& Hauptliste;
        Album_Start& Start;
        Playlist& Liste;
        Abspieler& Spieler;
    };
    Albenarbeit(Modell& modell, Alben& alben, Fortschritts_Fenster& fortschritt, const Nachbarn& nachbarn);

    // Asks, and takes the album out; the later ones move up. True when it is gone.
    bool Album_löschen(Long Nr);
    // The same for a title.
    bool Titel_löschen(Long Nr, int Titel);
    void Titel_tauschen(Long Nr, int a, int b);

    void starten(Long Nr);
    void zur_Playlist(Long Nr);
    // The title's song, when the collection has it.
    void Lied_starten(const Album_Lied& titel);

    void Verknüpfungen_löschen(Long Nr);
    // Links the album's titles to the songs of the same names; with `Meldung_zeigen` tells how many were found.
    void Scanne_DB(Long Nr, bool Meldung_zeigen);
    void Zeiten_übernehmen(Long Nr);

    // The song chosen in the main window; 0 none.
    Long gewähltes_Lied() const;
    // Adds a title for that song; 0 when there is no room.
    int Lied_anhängen(Long Nr, Long Lied_Nr);
    // Adds all lines of the main window's list, if all of them have room. False after its box.
    bool alle_anhängen(Long Nr);
    // A drag from the main window's list carries its chosen song; 0 none.
    Long gezogenes_Lied(const Element& quelle) const;

private:
    std::vector<Long> Lieder_der_Hauptliste() const;

    Modell& modell_;
    Alben& alben_;
    Fortschritts_Fenster& fortschritt_;
    Ansicht& ansicht_;
    Nachbarn nachbarn_;
};

}  // namespace tonkartei
