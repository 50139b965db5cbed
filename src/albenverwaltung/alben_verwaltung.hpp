// The album manager: the albums of the open collection, what is known of each, and its titles. Every field writes through
// into the album at once; the file is written when the window closes, or with the collection.
#pragma once

#include "alben/alben.hpp"
#include "albenverwaltung/titeltabelle.hpp"
#include "oberflaeche/fenster.hpp"
#include "oberflaeche/listen.hpp"

namespace tonkartei {

class Albenarbeit;
struct Einstellungen;
struct Modell;

class Alben_Verwaltung : public Fenster {
public:
    Alben_Verwaltung(Ansicht& ansicht, Modell& modell, Einstellungen& einstellungen, Alben& alben, Albenarbeit& arbeit);

    Schriftfeld Schnellsuche_Text{*this, "Schnellsuche_Text", "S&uche:"};
    Textfeld Schnellsuche{*this, "Schnellsuche"};
    Listenfeld Liste{*this, "Liste"};
    Listenfeld Nr_Liste{*this, "Nr_Liste"};  // hidden: the album's number of each line
    Schriftfeld Liste_Anzahl_Text{*this, "Liste_Anzahl_Text", "Alben:"};
    Schriftfeld Liste_Anzahl{*this, "Liste_Anzahl", "0"};
    Knopf Album_neu{*this, "Album_neu", "&Neues Album..."};
    Knopf Album_löschen{*this, "Album_löschen", "Album &löschen"};
    Knopf Album_import{*this, "Album_import", "&Von anderer Datenbank importieren"};
    Knopf Play_Album{*this, "Play_Album", "Album als Winamp-Playlist &starten"};
    Knopf add_to_Playlist{*this, "add_to_Playlist", "Album zur Playlist hinzufügen"};

    Rahmen Album_Info{*this, "Album_Info", "Album-Info:"};
    Schriftfeld Interpret_Text{*this, "Interpret_Text", "&Interpret:"};
    Textfeld Interpret{*this, "Interpret"};
    Schriftfeld Album_Titel_Text{*this, "Album_Titel_Text", "Titel:"};
    Textfeld Album_Titel{*this, "Album_Titel"};
    Schriftfeld Jahr_Text{*this, "Jahr_Text", "&Jahr:"};
    Textfeld Jahr{*this, "Jahr"};
    Kasten Maxi_CD{*this, "Maxi_CD", "Ma&xi-CD"};
    Schriftfeld Anzahl_Titel_Text{*this, "Anzahl_Titel_Text", "Titel:"};
    Schriftfeld Anzahl_Titel{*this, "Anzahl_Titel"};
    Schriftfeld Album_Zeit_Text{*this, "Album_Zeit_Text", "Zeit:"};
    Schriftfeld Album_Zeit{*this, "Album_Zeit"};

    Titeltabelle Titel_Tabelle{*this};
    Dreistufer Lied_Position{*this, "Lied_Position"};
    Knopf Titel_neu{*this, "Titel_neu", "&Neuer Titel..."};
    Knopf Titel_löschen{*this, "Titel_löschen", "Titel &löschen"};
    Knopf Datenbank_Titel_Null{*this, "Datenbank_Titel_Null", "&alle in der Datenbank auf 0"};
    Knopf Scan_DB{*this, "Scan_DB", "Datenbank nach den Titeln &scannen"};
    Knopf Scan_Zeit{*this, "Scan_Zeit", "&Zeit aus der Datenbank übernehmen"};

    Rahmen Lied_Info{*this, "Lied_Info", "Lied-Info:"};
    Schriftfeld Artist_Text{*this, "Artist_Text", "A&rtist:"};
    Textfeld Artist{*this, "Artist"};
    Schriftfeld Titel_Text{*this, "Titel_Text", "&Titel:"};
    Textfeld Titel{*this, "Titel"};
    Schriftfeld Zeit_Text{*this, "Zeit_Text", "Zeit:"};
    Textfeld Zeit{*this, "Zeit"};
    Kasten in_Datenbank{*this, "in_Datenbank", "in der &Datenbank"};
    Schriftfeld Datenbank_Nr_Text{*this, "Datenbank_Nr_Text", "Nr.:"};
    Textfeld Datenbank_Nr{*this, "Datenbank_Nr"};
    Knopf aktuelles_Lied{*this, "aktuelles_Lied", "aktuelles..."};
    Knopf Ende{*this, "Ende", "&Ende"};

    // Fills the lists and chooses the first album, when there is one.
    void Init();
    // The lists by the search, in their order. The chosen album stays chosen where it is still listed.
    void zeige_Alben_Liste();
    // What is shown of the chosen album, after its titles changed from outside.
    void aktualisieren();
    // Number of the chosen album; 0 none.
    Long Album_Nr() const;
    void Album_wählen(Long Nr);
    // All lines of the main window's list become titles of the chosen album.
    void alle_aus_Datenbank_hinzufügen();

    // The window is about to close; it has stored its place.
    Ereignis<> geschlossen;
    // The import is wanted.
    Ereignis<> Import_gewünscht;

protected:
    Knoten anordnung() override;
    void beim_Laden() override;
    void beim_Entladen() override;

private:
    void Album_verbinden();
    void Titel_verbinden();
    void Felder_beschreiben();
    Album* gewähltes_Album();
    Album_Lied* aktueller_Titel();
    void Album_zeigen();
    void Titel_zeigen();
    void Summen_zeigen();
    void Titel_geändert();
    void Zeit_geändert();
    void verschieben(int stufe);
    void neuer_Titel();
    void neue_Titel_zeigen(int titel);

    Modell& modell_;
    Einstellungen& einstellungen_;
    Alben& alben_;
    Albenarbeit& arbeit_;
    bool füllt_ = false;  // the fields are being filled: nothing is written through
};

}  // namespace tonkartei
