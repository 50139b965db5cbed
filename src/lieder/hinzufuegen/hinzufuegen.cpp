#include "lieder/hinzufuegen/hinzufuegen.hpp"

#include "alben/albenraum.hpp"
#include "datenbank/datenbankraum.hpp"
#include "kategorien/kategorienraum.hpp"
#include "wiedergabe/wiedergabe.hpp"

namespace tonkartei {

Hinzufügen::Hinzufügen(Datenbankraum& d, MP3_TagHead& mp3, Albenraum& alben, Kategorienraum& kategorien,
                       Wiedergabe& wiedergabe)
    : tag_ändern(d.haus.ansicht, mp3),
      zuordnung(d.haus.ansicht, d.haus.modell, kategorien.bearbeiten),
      begleiter{{d.haus.modell, alben.alben, alben.datei, d.haus.ansicht}, {d.haus.modell, d.haus.kanäle, d.haus.ansicht}},
      übernehmen(d.haus, mp3, wiedergabe.Steuerung),
      eintragen(d.haus.modell, mp3, kategorien.wahl),
      übernahme(d.haus, übernehmen, begleiter, zuordnung, eintragen),
      liste(d.haus, mp3, übernahme, tag_ändern, wiedergabe.Starter),
      verzeichnis(d.haus.ansicht, d.haus.plattform.Dateisystem, d.haus.einstellungen),
      dateien(d.haus, verzeichnis, liste),
      start_kategorien(d.haus.ansicht),
      datenbank(d.haus, d.öffnen, start_kategorien, zuordnung, liste),
      auszug(d.haus.modell, d.sitzung, zuordnung, liste) {
    kategorien.bearbeiten.umnummeriert.verbinden(
        [this](const std::function<Byte(Byte)>& neue) { eintragen.umnummerieren(neue); });
}

}  // namespace tonkartei
