// The adding of songs, put together: the sources, the window in which songs are chosen, the commit.
#pragma once

#include "lieder/hinzufuegen/auszugsdatenbank.hpp"
#include "lieder/hinzufuegen/begleiter.hpp"
#include "lieder/hinzufuegen/dateien_uebernehmen.hpp"
#include "lieder/hinzufuegen/datenbank_quelle.hpp"
#include "lieder/hinzufuegen/db_add_start_kategorien.hpp"
#include "lieder/hinzufuegen/dbadd_kategorien.hpp"
#include "lieder/hinzufuegen/lieder_eintragen.hpp"
#include "lieder/hinzufuegen/lieder_hinzufuegen.hpp"
#include "lieder/hinzufuegen/lieder_uebernahme.hpp"
#include "lieder/hinzufuegen/mp3_tag_aendern.hpp"
#include "lieder/hinzufuegen/neue_lieder_liste.hpp"
#include "lieder/hinzufuegen/verzeichnis_add.hpp"

namespace tonkartei {

struct Albenraum;
struct Datenbankraum;
struct Kategorienraum;
struct Wiedergabe;

struct Hinzufügen {
    Hinzufügen(Datenbankraum& datenbank, MP3_TagHead& mp3, Albenraum& alben, Kategorienraum& kategorien,
               Wiedergabe& wiedergabe);
    Hinzufügen(const Hinzufügen&) = delete;
    Hinzufügen& operator=(const Hinzufügen&) = delete;

    MP3_Tag_ändern tag_ändern;
    DBadd_Kategorien zuordnung;
    Begleiter begleiter;
    Dateien_übernehmen übernehmen;
    Lieder_eintragen eintragen;
    Lieder_Übernahme übernahme;
    neue_Lieder_Liste liste;
    // The sources.
    Verzeichnis_add verzeichnis;
    Lieder_hinzufügen dateien;
    DB_add_start_Kategorien start_kategorien;
    Datenbank_Quelle datenbank;
    Auszugsdatenbank auszug;
};

}  // namespace tonkartei
