// How the album manager looks.
#include "albenverwaltung/alben_verwaltung.hpp"

namespace tonkartei {

void Alben_Verwaltung::Felder_beschreiben() {
    for (Schriftfeld* feld : {&Anzahl_Titel, &Album_Zeit}) feld->wie_Daten = true;
    Schnellsuche.tooltip("Zeigt nur die Alben, in denen dieser Text vorkommt");
    Liste.tooltip("Die Alben der Datenbank");
    Play_Album.tooltip("Die vorhandenen Lieder des Albums mit WinAmp abspielen");
    add_to_Playlist.tooltip("Die vorhandenen Lieder des Albums in die Playlist aufnehmen");
    Datenbank_Titel_Null.tooltip("Kein Titel des Albums ist mehr mit einem Lied verbunden");
    Scan_DB.tooltip("Verbindet die Titel mit den Liedern gleichen Namens");
    Scan_Zeit.tooltip("Die Titel bekommen die Länge ihrer Lieder");
    Lied_Position.Vorlesename = "Reihenfolge";
    Lied_Position.tooltip("Verschiebt den aktuellen Titel");
    in_Datenbank.tooltip("Der Titel ist mit einem Lied der Datenbank verbunden");
    Datenbank_Nr.tooltip("Nummer des Liedes in der Datenbank");
    aktuelles_Lied.tooltip("Verbindet den Titel mit dem Lied, das im Hauptfenster gewählt ist");
    Zeit.tooltip("Minuten und Sekunden, durch einen Doppelpunkt getrennt");
}

Knoten Alben_Verwaltung::anordnung() {
    return Zeile(
               {Spalte({Zeile({Schnellsuche_Text, Knoten(Schnellsuche).dehnen(1)}),
                        Knoten(Liste).zeichen(34).zeilen(18).dehnen(1, 1),
                        Zeile({Liste_Anzahl_Text, Knoten(Liste_Anzahl).zeichen(5), Feder()}), Album_neu, Album_löschen,
                        Album_import, Play_Album, add_to_Playlist})
                    .dehnen(1, 1),
                Spalte({Gruppe(Album_Info, Spalte({Gitter(2, {Interpret_Text, Knoten(Interpret).zeichen(36).dehnen(1),
                                                              Album_Titel_Text, Knoten(Album_Titel).zeichen(36).dehnen(1)}),
                                                   Zeile({Jahr_Text, Knoten(Jahr).zeichen(6), Maxi_CD, Feder(),
                                                          Anzahl_Titel_Text, Knoten(Anzahl_Titel).zeichen(4),
                                                          Album_Zeit_Text, Knoten(Album_Zeit).zeichen(8)})})),
                        Zeile({Titel_Tabelle.Tabellenknoten().dehnen(1, 1), Lied_Position}).dehnen(1, 1),
                        Zeile({Titel_neu, Titel_löschen, Datenbank_Titel_Null, Feder()}),
                        Zeile({Scan_DB, Scan_Zeit, Feder()}),
                        Gruppe(Lied_Info, Spalte({Gitter(2, {Artist_Text, Knoten(Artist).zeichen(36).dehnen(1), Titel_Text,
                                                             Knoten(Titel).zeichen(36).dehnen(1)}),
                                                  Zeile({Zeit_Text, Knoten(Zeit).zeichen(7), in_Datenbank, Datenbank_Nr_Text,
                                                         Knoten(Datenbank_Nr).zeichen(6), aktuelles_Lied, Feder()})})),
                        Zeile({Feder(), Knoten(Ende).zeichen(12)})})
                    .dehnen(2, 1)})
        .rand(12 * Twips_je_Pixel);
}

}  // namespace tonkartei
