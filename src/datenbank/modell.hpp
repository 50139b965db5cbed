// The open collection in memory: songs, categories, schemes, and the state of the session around them.
#pragma once

#include "grundlagen/feld.hpp"
#include "grundlagen/text.hpp"
#include "grundlagen/zahl.hpp"
#include "grundlagen/zeit.hpp"

namespace tonkartei {

inline constexpr int Lieder_maximal = 5000;
inline constexpr int Kategorien_maximal = 20;
inline constexpr int Schemas_maximal = 9;

// The category of songs whose own was removed and whose new one is being asked for. It never reaches the disk.
inline constexpr Byte ohne_Kategorie = 255;

// A song. Its number is its place in `Lieder` and the name of its file; it is not stored in the record.
struct Lied {
    Long Anzahl = 0;     // times heard; the random choice prefers low values
    Text Artist;         // "---" when no tag could be read
    Long Größe = 0;      // KByte
    Byte Kategorie = 0;  // 1 to Anzahl_Kategorien
    Text Titel;
    tonkartei::Zeit Zeit = 0;  // playing time as a time of day; 00:00:00 unknown
};

// A stored, named selection of categories.
struct Schema {
    Byte Anzahl = 0;
    Text Name;
    Feld<Byte, Kategorien_maximal> Kategorien;  // only the first `Anzahl` count
};

// What the info file holds.
struct Bestand {
    Byte Anzahl_Kategorien = 0;
    Feld<Text, Kategorien_maximal> Kategorien;
    Byte Anz_Kat_Schemas = 0;  // how many of the nine schemes are offered
    Feld<Schema, Schemas_maximal> Schemas;
    Long Backup_Warnungs_Grenze = 0;  // MByte, 0 off
    Long Anzahl_Lieder = 0;
    Feld<Lied, Lieder_maximal> Lieder;
};

// The one object that all parts share: the collection and the session's state.
struct Modell : Bestand {
    Text Datenbank_Verzeichnis;  // with trailing separator
    // The arrays may be used; every command that touches the collection tests it.
    bool Datenbank_offen = false;
    bool erste_Datenbank_geladen = false;
    // Files are being moved and records follow: what is in memory and what is on the disk do not belong together.
    bool im_Umbau = false;
    // Converted into the temporary folder only: read, never saved back.
    bool konvertiert_in_Temp = false;
    Text Temp_Info_Datei;
    // Written with the collection when set; they belong to stores that count as not loaded in a new collection.
    bool Alben_geladen = false, Alben_geändert = false;
    bool Ignorieren_geladen = false, Ignorieren_geändert = false;
    Text Programmversion;

    // Full path of a song's file.
    Text Lied_Pfad(long long Nr) const;
    // Full path of a file of the family: folder and name, plainly joined.
    Text Pfad(const Text& Name) const { return Datenbank_Verzeichnis + Name; }
};

// "00000012.MP3". Error 9 outside 1 to 5000.
Text Lied_Dateiname(long long Nr);
// The readable name of a song that leaves the collection: "Artist - Titel.MP3"; ":", "\", "?" and "/" become "_".
Text Lied_Exportname(const Lied& lied);

// How alike two songs are, 0 to 2: a point for equal names, a point for equal size and file date.
int Lieder_vergleichen(const Lied& a, const Lied& b, const Zeitpunkt& Datum_a, const Zeitpunkt& Datum_b);

// Empties the collection; with `Kategorien_neu` the six first categories as well. The backup limit stays.
void Standard_Datenbank(Modell& modell, bool Kategorien_neu);

}  // namespace tonkartei
