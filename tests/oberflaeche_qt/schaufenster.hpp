// A window with every kind of control, for working by synthetic events.
#pragma once

#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/fenster.hpp"
#include "oberflaeche/listen.hpp"
#include "oberflaeche/menue.hpp"

namespace tonkartei {

struct Schaufenster : Fenster {
    explicit Schaufenster(Ansicht& ansicht) : Fenster(ansicht, "Schaufenster", "Schaufenster äöü ß") {
        Menü_setzen(menü_tabelle);
        Vorgabeknopf = &Ok;
        Abbruchknopf = &Abbruch;
        Lied_Titel.wie_Daten = Lied_Titel.eingerahmt = Hinweis.umbrechen = true;
        Lied_Titel.ausrichtung = Schriftfeld::Ausrichtung::rechts;
        Play.Bild = "play";
        Pause.Bild = "pause";
        Vor.Bild = "vor";
        Play.klein = Pause.klein = Vor.klein = true;
        Pop.farbe(RGB(192, 0, 0));
        Rot.aktiv(false);
        Rot.hintergrund(RGB(255, 220, 220));
        Genre.setzen({"Blues", "Classic Rock", "Jazz", "Übermäßig lange Bezeichnung eines Genres"});
        Genre.wähle(1);
        Ok.Klick.verbinden([this] { ++ok; });
        Suche.Geändert.verbinden([this] { ++geändert; });
        Liste.Klick.verbinden([this] { ++listenklicks; });
        nach_Artist.wählen();
    }

    Knoten anordnung() override {
        return Spalte({
                          Zeile({Symbol, Knoten(Lied_Titel).dehnen(1)}),
                          Modus,
                          Zeile({Spalte({Knoten(Liste).dehnen(1, 1), Zeile({Suche_Schrift, Knoten(Suche).dehnen(1)})})
                                     .dehnen(1, 1),
                                 Spalte({Gruppe(Kategorien, Gitter(2, {Pop, Klassik})),
                                         Gruppe(Sortierung, Zeile({nach_Titel, nach_Artist})), Genre,
                                         Gruppe(Panel, Zeile({Play, Pause, Vor})), Lautstärke, Bildlauf, Hinweis,
                                         Zeile({Stufen, Feder()}), Fortschritt, Feder(0, 1)})})
                              .dehnen(1, 1),
                          Zeile({Feder(1), Rot, Ok, Abbruch}),
                      })
            .rand(180);
    }
    Größe Startgröße() override { return {12000, 8400}; }

    Bildfläche Symbol{*this, "Symbol", "symbol"};
    Schriftfeld Lied_Titel{*this, "Lied_Titel", "Simon && Garfunkel - The Sound of Silence (Live, 1966)"};
    Reiter Modus{*this, "Modus", {"Lieder", "Alben"}};
    Listenfeld Liste{*this, "Liste"};
    Schriftfeld Suche_Schrift{*this, "Suche_Schrift", "&Schnellsuche:"};
    Textfeld Suche{*this, "Suche"};
    Rahmen Kategorien{*this, "Kategorien", "Kategorien"};
    Kasten Pop{*this, "Pop", "Pop"};
    Kasten Klassik{*this, "Klassik", "Klassik"};
    Rahmen Sortierung{*this, "Sortierung", "sortieren nach"};
    Optionsfeld nach_Titel{*this, "sortieren", "Titel", 1};
    Optionsfeld nach_Artist{*this, "sortieren", "Artist", 2};
    Auswahlfeld Genre{*this, "Genre"};
    Rahmen Panel{*this, "Panel"};
    Knopf Play{*this, "Play", "Play"};
    Knopf Pause{*this, "Pause", "Pause"};
    Knopf Vor{*this, "Vor", ">>"};
    Regler Lautstärke{*this, "Lautstärke", 0, 100};
    Regler Bildlauf{*this, "Bildlauf", 0, 20, ohne_Index, Regler::Form::Bildlauf};
    Schriftfeld Hinweis{*this, "Hinweis", "Doppelklick startet das Lied; mit der rechten Taste öffnet sich das Menü."};
    Dreistufer Stufen{*this, "Stufen"};
    Balken Fortschritt{*this, "Fortschritt"};
    Knopf Rot{*this, "Rot", "Warnung"};
    Knopf Ok{*this, "Ok", "OK"};
    Knopf Abbruch{*this, "Abbruch", "Abbrechen"};
    Menü menü_tabelle{*this,
                      {{"Datei", "&Datei", ohne_Index, {}, {{"Ende", "Be&enden", ohne_Index, [this] { ++menüklicks; }, {}}}},
                       {"Optionen", "&Optionen", ohne_Index, {}, {{"Fett", "&Fett", ohne_Index, [] {}, {}}}},
                       {"Hilfe", "&?", ohne_Index, {}, {{"Info", "&Info", ohne_Index, [] {}, {}}}}}};

    int ok = 0, geändert = 0, listenklicks = 0, menüklicks = 0;
};

}  // namespace tonkartei
