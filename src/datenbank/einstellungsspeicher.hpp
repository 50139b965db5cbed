// Reading and writing all settings: one table of keys for both ways.
#pragma once

#include "datenbank/einstellungen.hpp"
#include "datenbank/registry.hpp"

namespace tonkartei {

// Defaults that depend on the machine and on the main window's size, all in twips.
struct Einstellungs_Vorgaben {
    Long PositionX = 0, PositionY = 0;
    Long Playlist_PositionX = 0, Playlist_PositionY = 0, Playlist_Breite = 0, Playlist_Höhe = 0;
    Text WinAmp_Verzeichnis;
};

// All variables to their defaults, then what the registry holds. The keys of the display are written with their defaults
// instead of read: what its dialog sets holds for one run. A list count above 10 is run-time error 9.
void Einstellungen_lesen(Registry& registry, Einstellungen& werte, const Einstellungs_Vorgaben& vorgaben);

// All keys, in the order of the table.
void Einstellungen_schreiben(Registry& registry, const Einstellungen& werte);

}  // namespace tonkartei
