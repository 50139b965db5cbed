// What crosses the rooms: the main window's areas and menu entries on one side, what a subsystem does on the other. One
// function a subsystem, called once while the program is put together; the parts outlive all that is connected here.
#pragma once

#include "datenbank/haus.hpp"
#include "programm/tonkartei.hpp"

namespace tonkartei {

class Albenverwaltung;
class Kategorie_Wahl;
class Kontextmenüs;
class Lied_Befehle;
class Playlist;
class Sitzung;
struct Albenraum;
struct Ausgaberaum;
struct Austausch;
struct DJ_Raum;
struct DJ_alt_Raum;
struct Datenbankraum;
struct Displayraum;
struct Hinzufügen;
struct Liedautomatik;
struct Liederraum;
struct Statistikraum;
struct Wiedergabe;

// The window's own commands and settings.
void Fenster_anschließen(Haus& haus, Tonkartei& fenster);
void Datenbank_anschließen(Datenbankraum& datenbank, Tonkartei& fenster);
void Alben_anschließen(Albenraum& alben, Wiedergabe& wiedergabe, Tonkartei& fenster);
void Kategorien_anschließen(Kategorie_Wahl& wahl, const Modell& modell, Wiedergabe& wiedergabe, Tonkartei& fenster);
void Wiedergabe_anschließen(Wiedergabe& wiedergabe, Liedautomatik& automatik, Haus& haus, Tonkartei& fenster);
void Medien_anschließen(Wiedergabe& wiedergabe, Liedautomatik& automatik, Haus& haus, Tonkartei& fenster);
void Playlist_anschließen(Playlist& playlist, Liedautomatik& automatik, Sitzung& sitzung, Hinzufügen& hinzufügen);
void Albenverwaltung_anschließen(Albenverwaltung& verwaltung, Liederraum& lieder, Tonkartei& fenster);
void Austausch_anschließen(Austausch& austausch, Playlist& playlist, Tonkartei& fenster);
void Lieder_anschließen(Liederraum& lieder, Lied_Befehle& befehle, const Haus& haus, Playlist& playlist, Tonkartei& fenster);
void Statistik_anschließen(Statistikraum& statistik, Tonkartei& fenster);
void Ausgabe_anschließen(Ausgaberaum& ausgabe, Tonkartei& fenster);
void DJ_anschließen(DJ_Raum& dj, Haus& haus, Kontextmenüs& menüs, Tonkartei& fenster);
void DJ_alt_anschließen(DJ_alt_Raum& dj, Datenbankraum& datenbank, Wiedergabe& wiedergabe, Tonkartei& fenster);
void Display_anschließen(Displayraum& display, Tonkartei& fenster);

}  // namespace tonkartei
