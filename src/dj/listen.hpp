// The list area of the desk: search result, playlist and wish list in one place, with their tabs and buttons, the search
// field and the category boxes. The songs stand in the collections of numbers; the visible lists are only drawn from them.
#pragma once

#include <array>
#include <functional>
#include <vector>

#include "dj/kategorienwahl.hpp"
#include "dj/liedsuche.hpp"
#include "oberflaeche/listen.hpp"

namespace tonkartei {

class Rechner;
struct Haus;

// What a drag from one of the lists is marked with, and a blank and the list's number behind it.
inline constexpr const char* Listenmarke = "Tonkartei - DJ-Modus Liste";

class Listen {
public:
    static constexpr int Suchliste = 1, Playlist = 2, Wunschliste = 3;

    Listen(Fenster& fenster, Haus& haus);

    Elementreihe<Knopf, 3> Listen_Mode;
    Textfeld Schnellsuche;
    Elementreihe<Listenfeld, 3> Liste;
    Elementreihe<Knopf, 5> Listen_Taste;
    Rahmen Kategorien_Rahmen;
    Kategorienwahl::Kästen Kategorie;
    Knopf Kategorie_Schema;
    Auswahlfeld Kat_Schemas;

    // 1 to 3: the list that shows.
    int Listen_Modus = Suchliste;

    // For the opening of the window: captions and empty lists; then list 1 with all songs.
    void beginnen();
    void eröffnen();
    Knoten anordnung();

    const std::vector<Long>& Lieder(int liste) const { return Lieder_Listen_.at(static_cast<std::size_t>(liste) - 1); }
    // Puts a new content into list 2 or 3, or a song at its end, and shows it.
    void setzen(int liste, std::vector<Long> nummern);
    void anhängen(int liste, Long Nr);
    // A song that plays leaves playlist and wish list; every entry of it. Nothing for numbers below 1.
    void Lied_entfernen(Long Nr);

    // Built anew from the boxes and the search text.
    void erstelle_Suchliste();
    void zeige_Playlist();
    void zeige_Wunschliste();
    // The rows of dashes follow the lists' width; the choice stays.
    void neu_ausrichten();

    // Place in list 3 of the chosen line, whose header lines do not count; 0 for a header or without a choice.
    int Wunsch_Position() const;
    // The song that a drag from the lists carries; 0 for anything else. The random line draws one.
    Long Lied_aus_Tag(const Text& Tag);
    // Evenly out of list 1; 0 when it is empty.
    Long Zufalls_Nr();

    // Buttons 4 and 5 in the lists 2 and 3.
    Ereignis<> speichern, laden;
    // A key in a list: its chosen song to that player.
    Ereignis<int, Long> zum_Player;

private:
    void verbinden();
    void zeige_Modus(int modus);
    void Taste_gedrückt(int liste, Taste& taste);
    void löschen();
    void verschieben(int schritt);
    void zeige_Schemas();
    void Schema_gewählt();
    void zeichnen(int liste);
    Text Liedzeile(Long Nr) const;
    Text Kopfzeile(int Kategorie) const;
    int Strichbreite(int liste) const;
    std::vector<Long>& Lieder_Liste(int liste) { return Lieder_Listen_.at(static_cast<std::size_t>(liste) - 1); }

    const Modell& modell_;
    Ansicht& ansicht_;
    Rechner& rechner_;
    Liedsuche suche_;
    Kategorienwahl wahl_;
    std::array<std::vector<Long>, 3> Lieder_Listen_;
};

}  // namespace tonkartei
