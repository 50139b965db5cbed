// What can be done to songs, put together: changing and removing them, adding new ones, looking after all of them.
#pragma once

#include "lieder/hinzufuegen/hinzufuegen.hpp"
#include "lieder/lied_anzahl.hpp"
#include "lieder/lied_austauschen.hpp"
#include "lieder/lied_bearbeiten.hpp"
#include "lieder/lied_kopieren.hpp"
#include "lieder/lied_nachruecken.hpp"
#include "lieder/lieder_entfernen.hpp"
#include "lieder/luecken.hpp"
#include "lieder/wartung/datum_eingeben.hpp"
#include "lieder/wartung/neueinlesen.hpp"
#include "lieder/wartung/vergleichsbericht.hpp"
#include "lieder/wartung/wartung.hpp"
#include "mp3/mp3_taghead.hpp"

namespace tonkartei {

struct Liederraum {
    // `liste` is the main window's area.
    Liederraum(Datenbankraum& datenbank, Albenraum& alben, Kategorienraum& kategorien, Wiedergabe& wiedergabe,
               Listenbereich& liste);
    Liederraum(const Liederraum&) = delete;
    Liederraum& operator=(const Liederraum&) = delete;

    MP3_TagHead mp3;
    Lied_nachrücken nachrücken;
    Lieder_entfernen entfernen;
    Lücken lücken;
    Lied_kopieren kopieren;
    Lied_austauschen austauschen;
    Lied_bearbeiten bearbeiten;
    Lied_Anzahl anzahl;
    Hinzufügen hinzufügen;
    Neueinlesen einlesen;
    Vergleichsbericht vergleichsbericht;
    Datum_eingeben datum_eingeben;
    Wartung wartung;
};

}  // namespace tonkartei
