// All parts of the program in the order in which they need each other.
#pragma once

#include "alben/alben_befehle.hpp"
#include "alben/alben_datei.hpp"
#include "alben/album_start.hpp"
#include "alben/album_waehlen.hpp"
#include "ausgabe/ausgaberaum.hpp"
#include "datenbank/datenbank_oeffnen.hpp"
#include "datenbank/einstellungsspeicher.hpp"
#include "datenbank/info_datei.hpp"
#include "datenbank/konvertierung.hpp"
#include "datenbank/m3u.hpp"
#include "datenbank/sitzung.hpp"
#include "datenbank/zugriffsdatei.hpp"
#include "display/displayraum.hpp"
#include "kategorien/kategorie_bearbeiten.hpp"
#include "kategorien/kategorie_wahl.hpp"
#include "lieder/hinzufuegen/dateien_uebernehmen.hpp"
#include "lieder/hinzufuegen/datenbank_quelle.hpp"
#include "lieder/hinzufuegen/db_add_start_kategorien.hpp"
#include "lieder/hinzufuegen/dbadd_kategorien.hpp"
#include "lieder/hinzufuegen/lieder_eintragen.hpp"
#include "lieder/hinzufuegen/lieder_hinzufuegen.hpp"
#include "lieder/hinzufuegen/lieder_uebernahme.hpp"
#include "lieder/hinzufuegen/mp3_tag_aendern.hpp"
#include "lieder/hinzufuegen/neue_lieder_liste.hpp"
#include "lieder/hinzufuegen/neue_playlist.hpp"
#include "lieder/hinzufuegen/neues_album.hpp"
#include "lieder/hinzufuegen/verzeichnis_add.hpp"
#include "lieder/lied_anzahl.hpp"
#include "lieder/lied_austauschen.hpp"
#include "lieder/lied_bearbeiten.hpp"
#include "lieder/lied_kopieren.hpp"
#include "lieder/lied_nachruecken.hpp"
#include "lieder/lieder_entfernen.hpp"
#include "lieder/luecken.hpp"
#include "lieder/wartung/datum_eingeben.hpp"
#include "lieder/wartung/lieder_einlesen.hpp"
#include "lieder/wartung/vergleichsbericht.hpp"
#include "lieder/wartung/wartung.hpp"
#include "mp3/mp3_taghead.hpp"
#include "oberflaeche/fortschritt.hpp"
#include "plattform/kanaele.hpp"
#include "playlist/playlist.hpp"
#include "programm/infofenster.hpp"
#include "programm/kontextmenues.hpp"
#include "programm/lied_befehle.hpp"
#include "programm/mausmarkierung.hpp"
#include "programm/playlist_anschluss.hpp"
#include "programm/programm.hpp"
#include "programm/splash.hpp"
#include "programm/startparameter.hpp"
#include "programm/tonkartei.hpp"
#include "statistik/statistikraum.hpp"
#include "wiedergabe/wiedergabe.hpp"
#include "wiedergabe/zufall/liedautomatik.hpp"

namespace tonkartei {

struct Programm::Teile {
    Teile(const Plattform& p, Ansicht& a, const Text& Kommandozeile);

    // The start sequence's steps.
    void starten();
    // Reads the settings and brings the menu's marks and the controls that mirror a setting in line with them.
    void Einstellungen_setzen();

    Plattform plattform;
    Ansicht& ansicht;
    Startparameter parameter;
    // The end of the program writes the settings. Off after a start that was given up, and after Uninstall.
    bool Einstellungen_werden_geschrieben = true;

    Modell modell;
    Einstellungen einstellungen;
    Registry registry{plattform.Registrierung};
    Kanäle kanäle{plattform.Dateisystem};
    MP3_TagHead taghead{plattform.Dateisystem};

    Fortschritts_Fenster fortschritt{ansicht};
    Info_Datei info{modell, kanäle, plattform.Dateisystem, ansicht, fortschritt};
    Konvertierung konvertierung{modell,  kanäle,      plattform.Dateisystem,
                                ansicht, fortschritt, plattform.Rechner.Temp_Verzeichnis()};
    Zugriffsdatei zugriff{modell, kanäle, plattform.Rechner, ansicht};
    Sitzung sitzung{modell, einstellungen, info, zugriff, plattform, ansicht};
    Datenbank_öffnen datenbank_öffnen{ansicht, einstellungen, plattform.Dateisystem};
    Kategorie_Wahl kategorie_wahl{ansicht, modell};
    Kategorie_bearbeiten kategorie_bearbeiten{ansicht, modell, kategorie_wahl};

    Alben alben{plattform.Rechner, ansicht};
    Alben_Datei alben_datei{modell, alben, kanäle, plattform.Dateisystem, ansicht};
    Album_wählen album_wählen{ansicht, alben};
    M3U m3u{modell, kanäle};
    Album_Start album_start{modell, einstellungen, alben, m3u, ansicht};
    Alben_Befehle alben_befehle{modell, alben_datei, album_wählen, album_start, ansicht};

    Wiedergabe wiedergabe{modell, einstellungen, plattform, kanäle, ansicht};
    Tonkartei fenster{ansicht, modell, einstellungen, alben.eigene, wiedergabe.Spieler, plattform.Rechner};
    Liedautomatik automatik{modell,     einstellungen,  plattform,          ansicht,
                            wiedergabe, fenster.Lieder, fenster.Kategorien, fenster.Wiedergabe};
    Mausmarkierung markierung{fenster, einstellungen, fenster.Fernsteuerung};
    Playlist playlist{ansicht, modell, einstellungen, plattform.Dateisystem, m3u};
    Infofenster infofenster{ansicht, modell};
    Splash splash{ansicht, modell, einstellungen, sitzung, kanäle, plattform};

    Dateien_übernehmen dateien_übernehmen{modell, plattform.Dateisystem, plattform.Shell, taghead, fortschritt};
    Lieder_eintragen lieder_eintragen{modell, taghead, kategorie_wahl};
    Lieder_Übernahme übernahme{ansicht, modell, plattform.Dateisystem, dateien_übernehmen, lieder_eintragen};
    Verzeichnis_add verzeichnis_add{ansicht, plattform.Dateisystem, einstellungen};
    neue_Lieder_Liste neue_Lieder{ansicht, plattform.Dateisystem, taghead, fortschritt, übernahme};

    Lied_nachrücken nachrücken{modell, alben_datei, wiedergabe.ABR};
    Lieder_entfernen lieder_entfernen{modell, einstellungen, plattform, ansicht, nachrücken};
    Lücken lücken{modell, plattform.Dateisystem, plattform.Shell, fortschritt, nachrücken};
    Lied_kopieren lied_kopieren{modell, plattform.Shell, fortschritt};
    Lied_austauschen lied_austauschen{modell, plattform, taghead, ansicht, lieder_entfernen};
    Lied_bearbeiten lied_bearbeiten{modell, taghead, ansicht};
    Lied_Anzahl lied_anzahl{modell, ansicht};
    MP3_Tag_ändern tag_ändern{ansicht, taghead};
    Lied_Befehle lied_befehle{*this};
    Playlist_Anschluss playlist_anschluss{*this};

    // What the menu's handlers work with, kept for as long as the menu.
    std::shared_ptr<void> menübefehle;
    // Made as soon as the menu bar is there, whose commands it runs.
    std::unique_ptr<Kontextmenüs> kontextmenüs;

    Lieder_hinzufügen hinzufügen{modell, plattform.Dateisystem, kanäle, einstellungen, verzeichnis_add, neue_Lieder};
    Neues_Album neues_album{modell, alben, alben_datei, ansicht};
    Neue_Playlist neue_playlist{modell, kanäle, ansicht};
    DB_add_start_Kategorien start_kategorien{ansicht};
    DBadd_Kategorien dbadd_kategorien{ansicht, modell};
    Datenbank_Quelle datenbank_quelle{modell,      plattform.Dateisystem, kanäle,           plattform.Rechner,
                                      fortschritt, datenbank_öffnen,      start_kategorien, dbadd_kategorien,
                                      neue_Lieder};

    Lieder_einlesen einlesen{modell, taghead, fortschritt};
    Vergleichsbericht vergleichsbericht{modell, kanäle, plattform.Dateisystem, taghead, fortschritt};
    Datum_eingeben datum_eingeben{ansicht, plattform.Rechner};
    Wartung wartung{modell, plattform.Dateisystem, einlesen, fortschritt, datum_eingeben, fenster.Lieder};

    Statistikraum statistik{modell, plattform, kanäle, fortschritt, {wiedergabe.Zählung, playlist}};
    Ausgaberaum ausgabe{modell, plattform, kanäle, fortschritt, fenster.Lieder};
    Displayraum display{ansicht, einstellungen.Display};

private:
    void verbinden();
    void Menüs_nachführen();
    bool darf_schließen(Schließgrund grund);
    void wird_geschlossen();
};

// The main menu: names, captions and what each entry does. An entry without a command is disabled.
std::vector<Menüzeile> Hauptmenü_Tabelle(Programm::Teile& teile);

}  // namespace tonkartei
