// The window in which the songs that a source has found are chosen for adding. A source calls Reset, add_Lied for each file,
// activate; the window lives from there to the end of the commit.
#pragma once

#include <functional>

#include "datenbank/haus.hpp"
#include "grundlagen/feld.hpp"
#include "lieder/hinzufuegen/lieder_uebernahme.hpp"
#include "mp3/mp3_taghead.hpp"
#include "oberflaeche/elemente.hpp"
#include "oberflaeche/fenster.hpp"
#include "oberflaeche/listen.hpp"

namespace tonkartei {

class MP3_Tag_ändern;
class WinAmp_Starter;

class neue_Lieder_Liste : public Fenster {
public:
    neue_Lieder_Liste(Haus& haus, MP3_TagHead& mp3, Lieder_Übernahme& übernahme, MP3_Tag_ändern& tag_ändern,
                      WinAmp_Starter& starter);

    Schriftfeld gefundene_Lieder_Text{*this, "gefundene_Lieder_Text", "ge&fundene Lieder:"};
    Listenfeld gefundene_Lieder{*this, "gefundene_Lieder"};
    Knopf abspielen_1{*this, "abspielen", "an&hören", 1};
    Schriftfeld Liste_Anzahl_1_Text{*this, "Liste_Anzahl_Text", "Anzahl:", 1};
    Schriftfeld Liste_Anzahl_1{*this, "Liste_Anzahl", "0", 1};
    Schriftfeld Liste_Größe_1_Text{*this, "Liste_Größe_Text", "MByte:", 1};
    Schriftfeld Liste_Größe_1{*this, "Liste_Größe", "---", 1};
    Knopf add_alle{*this, "add_alle", "&alle  >>"};
    Knopf add_dieses{*this, "add_dieses", "&dieses  >"};
    Knopf del_dieses{*this, "del_dieses", "<  di&eses"};
    Knopf del_alle{*this, "del_alle", "<<  a&lle"};
    Schriftfeld Lieder_hinzufügen_Text{*this, "Lieder_hinzufügen_Text", "&neue Lieder:"};
    Listenfeld Lieder_hinzufügen{*this, "Lieder_hinzufügen"};
    Knopf abspielen_2{*this, "abspielen", "anhö&ren", 2};
    Schriftfeld Liste_Anzahl_2_Text{*this, "Liste_Anzahl_Text", "Anzahl:", 2};
    Schriftfeld Liste_Anzahl_2{*this, "Liste_Anzahl", "0", 2};
    Schriftfeld Liste_Größe_2_Text{*this, "Liste_Größe_Text", "MByte:", 2};
    Schriftfeld Liste_Größe_2{*this, "Liste_Größe", "---", 2};
    Rahmen Tags{*this, "Tags", "gefundene Lieder"};
    Knopf MP3_Tags_lesen{*this, "MP3_Tags_lesen", "MP3-&Tags lesen"};
    Knopf Tag_ändern{*this, "Tag_ändern", "Ta&g ändern..."};
    Rahmen Dateien{*this, "Dateien", "Dateien"};
    Optionsfeld add_Option_1{*this, "add_Option", "&kopieren", 1};
    Optionsfeld add_Option_2{*this, "add_Option", "&bewegen", 2};
    Rahmen dazu{*this, "dazu", "neue Lieder"};
    Kasten Album_erstellen{*this, "Album_erstellen", "Album er&stellen"};
    Kasten Playlist_erstellen{*this, "Playlist_erstellen", "&Playlist erstellen"};
    Knopf Ok{*this, "Ok", "&OK"};
    Knopf Abbruch{*this, "Abbruch", "Abbru&ch"};
    // Side by side with the visible lists: the text of each found song, its KByte as a decimal text, and for each line of
    // Lieder_hinzufügen the number (from 1) of its found song.
    Listenfeld MP3_Tags{*this, "MP3_Tags"};
    Listenfeld MP3_DGröße{*this, "MP3_DGröße"};
    Listenfeld Nr_Liste{*this, "Nr_Liste"};

    // Connected by the composition. The main window is locked while songs are added.
    std::function<void(bool gesperrt)> Hauptfenster_sperren;
    std::function<void()> Liste_fokussieren;

    // Loads the window, hidden, with nothing found.
    void Reset();
    // Index error (9) at the 5001st file.
    void add_Lied(const Text& Pfad, Byte Quell_Kategorie = 0);
    // For sources that know them: the text and the KByte of the song just added.
    void add_MP3_Tag(const Text& Artist_Titel);
    void add_MP3_Größe(double KByte);
    // Shows what was found and returns when the window is closed. `Füllen`: the texts are the file names, sizes unknown.
    void activate(Byte Quelle, bool Füllen);

protected:
    Knoten anordnung() override;
    Größe Startgröße() override;
    void beim_Entladen() override;

private:
    void alle_hinzufügen();
    void dieses_hinzufügen();
    void dieses_entfernen();
    void alle_entfernen();
    void Tags_lesen();
    void Tag_des_gewählten_ändern();
    void Lied_abspielen(Long Nr);
    void Summen_zeigen();
    void übernehmen();

    // Number of the found song behind a line of Lieder_hinzufügen.
    Long Nr_von(int zeile) const;
    double KByte_von(Long Nr) const;
    double KByte_hinzuzufügender() const;

    Dateisystem& dateien_;
    Fortschritts_Fenster& fortschritt_;
    MP3_TagHead& mp3_;
    Lieder_Übernahme& übernahme_;
    MP3_Tag_ändern& tag_ändern_;
    WinAmp_Starter& starter_;

    Byte Quelle_ = Quelle_Dateien;
    Übernahmeart Modus_ = Übernahmeart::kopieren;
    Long Anzahl_gefunden_ = 0;
    Feld<Lied_Fund, Lieder_maximal> Funde_;  // in the order found
};

}  // namespace tonkartei
