// The list area of the main window: the view of the collection, the quick search, the totals, the details of the chosen
// song.
#pragma once

#include "datenbank/einstellungen.hpp"
#include "datenbank/modell.hpp"
#include "grundlagen/ereignis.hpp"
#include "liste/lieder_liste.hpp"
#include "liste/titelliste.hpp"
#include "oberflaeche/anordnung.hpp"
#include "oberflaeche/elemente.hpp"
#include "oberflaeche/listen.hpp"

namespace tonkartei {

class Alben_Befehle;
class Kategorienbereich;
struct Albenbestand;
struct Albenraum;
struct Haus;

// A song on a line of the list of the present tab.
struct Listenlied {
    int Zeile;
    Long Nr;
};

class Listenbereich {
public:
    Listenbereich(Fenster& fenster, Haus& haus, Albenraum& alben, Kategorienbereich& kategorien);

    Reiter Datenbank_Modus;  // 0 songs, 1 albums
    Schriftfeld sortieren_Text;
    Optionsfeld sortieren_Titel, sortieren_Artist;  // sortieren(1), sortieren(2)
    Schriftfeld Schnellsuche_Text;
    Textfeld Schnellsuche;
    Listenfeld Liste;
    Listenfeld Nr_Liste;  // hidden: the number of each line of Liste
    Titelliste Liste2;    // titles of the chosen album
    Schriftfeld Liste_Anzahl_Text, Liste_Anzahl, Liste_Größe_Text, Liste_Größe, Liste_Dauer_Text, Liste_Dauer;

    Rahmen Lied_Rahmen;
    Schriftfeld Titel_Text, Titel, Artist_Text, Artist, Anzahl_Text, Anzahl, Lied_Größe_Text, Lied_Größe, Lied_Zeit_Text,
        Lied_Zeit;
    Knopf Reset_Anzahl;
    Schriftfeld Lied_Kategorie_Text;

    // Rebuilds what the present tab shows.
    void aktualisiere_Liste();
    // Fills Liste from Nr_Liste and works out the totals.
    void erstelle_Liste_von_Nr_Liste();
    // The numbers for the next erstelle_Liste_von_Nr_Liste.
    void Nr_Liste_setzen(const std::vector<long long>& nummern);
    // Song number of a line of Liste; error 9 outside it.
    Long Lied_Nr(int Index) const;
    // Every way from the list to a song for a command goes through one of these. They tell none while no collection is open:
    // the list of the one before may still be on show then, and what is done to its songs would be lost.
    //
    // Number of the song chosen in the present tab; 0 none.
    Long gewähltes_Lied() const;
    // In the album tab: number of the album chosen in Liste, and of the song of the title chosen in Liste2; 0 none.
    Long Album_Nr() const;
    Long Album_Lied_Nr() const;
    // The songs on the lines of the song tab, in their order, each once; those that the collection no longer has left out.
    std::vector<Long> Lieder_in_Liste() const;
    // What chance may draw from in the present tab: every line of Liste, or those titles of the chosen album that the
    // collection has, with their lines of Liste2.
    std::vector<Listenlied> Lieder_im_Blick() const;
    // The song that a command means: the chosen one of the present tab, else the one whose details are shown; 0 none.
    Long gemeintes_Lied() const;

    // Chooses the last line of Liste that holds the song; the first line when none does.
    void wähle_Lied(Long Nr);
    // Number of the song whose details are shown; 0 none.
    Long angezeigtes_Lied() const noexcept { return angezeigtes_Lied_; }
    // Whether the box of a category is checked; the first stands for all.
    bool zeigt_Kategorie(int k) const;
    void zeige_Lied(Long Nr);
    // A count was raised: the label follows where the chosen line is Nr - 1. That the line is compared with the number, not
    // with the song on it, is meant: the label is refreshed only where the two happen to agree.
    void Anzahl_auffrischen(Long Nr);
    void Schnellsuche_fokussieren();
    // The start of a new collection: sorted by artist, search emptied; rebuilds in any case.
    void Sicht_zurücksetzen();
    Sortierung sortierung() const noexcept { return sortierung_; }

    Knoten Listenknoten();
    Knoten Liedknoten(Auswahlfeld& Lied_Kategorie);
    // After the window's layout: the places that the tree does not tell.
    void freie_Lage();

    Ereignis<Long> Lied_starten;                 // double click or Return, by the setting
    Ereignis<Long> zur_Playlist;                 // the same
    Ereignis<Long> Anzahl_ändern;                // Reset_Anzahl, and a click on the number
    Ereignis<Long> Titel_ändern, Artist_ändern;  // a click on the field of the song that is shown
    // Return in the search: as the start button, which knows what to do without a song.
    Ereignis<> Start_gewünscht;

private:
    // 0 for what is no song of an open collection. A special list may hold numbers of one before.
    Long brauchbar(Long Nr) const;
    void erstelle_Lieder_Liste();
    void erstelle_Alben_Liste();
    void zeige_Album(Long Nr);
    void Titel_gewählt();
    void Summe_zeigen(int Anzahl, const Listensumme& summe);
    void Einzelheiten_leeren();
    void Sortierung_wählen(Sortierung sortierung);
    void Suche_geändert();
    void Suchtaste(Taste& taste);
    void Tab_gewechselt();
    void Zeile_gewählt();
    void Zeile_ausführen();

    Fenster& fenster_;
    Modell& modell_;
    const Einstellungen& einstellungen_;
    const Albenbestand& alben_;
    Alben_Befehle& albenbefehle_;
    Kategorienbereich& kategorien_;
    Liederordnung ordnung_;
    Sortierung sortierung_ = Sortierung::Artist;
    Long angezeigtes_Lied_ = 0;
};

}  // namespace tonkartei
