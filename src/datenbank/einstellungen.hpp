// The user's settings: plain variables during the run, read from the registry once at the start and written once at the end.
#pragma once

#include "grundlagen/feld.hpp"
#include "grundlagen/text.hpp"
#include "grundlagen/zahl.hpp"
#include "oberflaeche/farbe.hpp"

namespace tonkartei {

inline constexpr int Verzeichnisse_maximal = 10;

// The settings of the display on the parallel port. At every start they fall back to these defaults.
struct Display_Einstellungen {
    Long Datenport = 888, Statusport = 889, Controlport = 889;
    Long Register_Select = 1, Enable = 2;
    Long Taster[3] = {1, 2, 3};
    bool Taster_aktiv[3] = {false, false, false};
    Long Anzahl_Zeilen = 4, Anzahl_Zeichen = 20;
    Long Adresse_Zeile[4] = {0, 40, 20, 60};
    Long Befehls_Zeit = 40, Anzeige_Zeit = 40;
    bool Init_aktiv[4] = {true, true, true, true};
    Long Init_Wert[4] = {48, 56, 12, 6};
    Long Init_Zeit[4] = {80, 80, 40, 40};
};

// What the desktop remembers of us beyond that; in the store only where it is not as here. Sizes in twips, 0: the usual.
struct Schreibtisch_Einstellungen {
    Long Breite = 0, Höhe = 0;
    Long Alben_Breite = 0, Alben_Höhe = 0;
    bool Liedwechsel_melden = false;
};

struct Einstellungen {
    Byte Datenbank_Liste_Anzahl = 0, Verzeichnis_Anzahl = 0;
    Feld<Text, Verzeichnisse_maximal> Datenbank_Liste;  // the newest first
    Feld<Text, Verzeichnisse_maximal> Zuletzt_hinzugefügte_Verzeichnisse;
    Long Anzahl_Zeit = 10;  // seconds that a song must run before the next start so that it counts
    bool Lieder_Namen_lesen = false;
    Byte Liste_Doppelklick = 1;  // 1 start, 2 add to the playlist, 3 both
    bool bei_Listensuche_sichtbar = true;
    Byte Listensuche_Anzahl_Buchstaben = 1;
    bool Papierkorb = true;
    bool Alben_Liste_animiert = true;
    Text WinAmp_Verzeichnis;
    Long WinAmp_Lautstärke = 75;
    bool WinAmp_Zeit_vorwärts = true;
    bool WinAmp_Fernsteuerung = true;
    bool WinAmp_Fernsteuerung_animiert = true;
    bool WinAmp_FS_Lautstärke = false;
    bool WinAmp_verstecken = false;
    bool WinAmp_verstecken_minimiert = true;
    Long WinAmp_beenden = 4;            // closing rule 1 to 4
    Long PositionX = 0, PositionY = 0;  // twips
    Long Kategorien = 1;                // bit k - 1: box k
    bool Kategorien_merken = false;
    Byte Random_Einstellung = 25;
    Byte Kategorie_Rechtsklick = 1;  // 1 only this category, 2 assign to the song
    bool Kategorie_wechsel_bestätigen = true;
    Long Kategorie_Farbe = 65535;
    Long automatische_Kategorien_Farbe = 32768;
    Long Markierte_Farbe = 16763030;
    Long Markierte_Listen_Farbe = 16773340;
    Long auto_Kat_Wechsel_Lieder = 5;
    bool Position_merken = true;
    bool auto_Kat_Wechsel_Status = false;
    bool Random_Autoplay = true;
    Byte Fenster_minimieren = 2;  // 1 task bar, 2 tray, 3 both
    bool Systray_immer_sichtbar = true;
    bool Objekt_Markierung_aktiv = true;
    Long Alben_PositionX = 0, Alben_PositionY = 0;
    Long Playlist_PositionX = 0, Playlist_PositionY = 0, Playlist_Breite = 0, Playlist_Höhe = 0;
    bool Playlist_Always_on_top = false;
    Byte Playlist_autoshow = 3;  // 1 always, 2 never, 3 as at the last end
    bool Playlist_Status = false;
    bool Playlist_Position_merken = true;
    bool Playlist_Minimieren = true;
    Display_Einstellungen Display;
    Schreibtisch_Einstellungen Schreibtisch;
};

}  // namespace tonkartei
