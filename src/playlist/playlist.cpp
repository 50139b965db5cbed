// The window: its controls, its menu, its life.
#include "playlist/playlist.hpp"

#include <algorithm>

#include "liste/listenbereich.hpp"

namespace tonkartei {

Playlist::Playlist(Haus& haus, const M3U& m3u, Listenbereich& liste, WinAmp_Starter& starter)
    : Fenster(haus.ansicht, "Playlist", "Playlist"),
      modell_(haus.modell),
      einstellungen_(haus.einstellungen),
      dateien_(haus.plattform.Dateisystem),
      m3u_(m3u),
      datenbankliste_(liste),
      starter_(starter),
      menü_(*this, Tabelle()) {
    Menü_setzen(menü_);
    eigenständig = true;
    Nr_Liste.unsichtbarer_Helfer = true;
    Nr_Liste.sichtbar(false);
    Liste_Anzahl.eingerahmt = true;
    Liste_Anzahl.wie_Daten = true;
    Liste_Anzahl.ausrichtung = Schriftfeld::Ausrichtung::rechts;
    Reihenfolge.Vorlesename = "Reihenfolge";
    Liste.tooltip("Die Lieder der Playlist; aus der Liste der Datenbank lassen sich Lieder hierher ziehen");
    Reihenfolge.tooltip("verschiebt das gewählte Lied nach oben oder unten");
    löschen.tooltip("nimmt das gewählte Lied aus der Playlist");
    alle_löschen.tooltip("leert die Playlist");

    Reihenfolge.Geändert.verbinden([this] {
        const int stufe = Reihenfolge.wert();
        if (stufe == Dreistufer::Ruhe) return;
        verschieben(stufe == Dreistufer::oben_Stufe ? -1 : 1);
        Reihenfolge.wert(Dreistufer::Ruhe);
    });
    löschen.Klick.verbinden([this] { aktuelles_löschen(); });
    alle_löschen.Klick.verbinden([this] { alles_löschen(); });
    Liste.Tastendruck.verbinden([this](Taste& taste) {
        if (taste.art != Taste::Art::Löschen) return;
        taste.erledigt = true;
        aktuelles_löschen();
    });
    Liste.Abgelegt.verbinden([this](Element& quelle) {
        if (const Long nr = gezogenes_Lied(quelle); nr > 0) add_Lied(nr, true);
    });
}

// A line of the albums carries no song.
Long Playlist::gezogenes_Lied(const Element& quelle) const {
    const auto& liste = datenbankliste_;
    return &quelle == &liste.Liste && liste.Datenbank_Modus.wert() == 0 ? liste.gewähltes_Lied() : 0;
}

std::vector<Menüzeile> Playlist::Tabelle() {
    const auto Befehl = [](const char* name, const char* text, std::function<void()> handler, int index = ohne_Index) {
        return Menüzeile{name, text, index, std::move(handler), {}};
    };
    const auto Strich = [](const char* name) { return Menüzeile{name, "-", ohne_Index, nullptr, {}}; };
    const auto Schalter = [&](const char* name, const char* text, bool Einstellungen::*schalter) {
        return Befehl(name, text, [this, schalter] {
            einstellungen_.*schalter = !(einstellungen_.*schalter);
            Haken_setzen();
        });
    };
    const auto Öffnen_beim_Start = [&](int n, const char* text) {
        return Befehl(
            "autoshow", text,
            [this, n] {
                einstellungen_.Playlist_autoshow = als_Byte(n);
                Haken_setzen();
            },
            n);
    };
    return {
        {"OMP_Playlist",
         "&Playlist",
         ohne_Index,
         nullptr,
         {Befehl("starten", "&starten", [this] { starten(); }),
          Befehl("erstelle_DB_Liste", "in &Datenbank-Liste kopieren", [this] { erstelle_DB_Liste(); }),
          Befehl("erstelle_Datenbank", "Datenbank &aus Playlist erstellen", [this] { erstelle_Datenbank(); }),
          Befehl("Dateigröße", "Datei&größe ermitteln", [this] { Dateigröße(); }),
          Befehl("sortieren", "Playlist &alphabetisch sortieren", [this] { sortieren(); }), Strich("Playlist_Strich1"),
          Befehl("Neu", "&Neu", [this] { Neu(); }), Befehl("speichern", "Speichern &unter", [this] { speichern(); }),
          Befehl("öffnen", "&Öffnen", [this] { öffnen(); }), Strich("Playlist_Strich2"),
          Befehl("beenden", "Be&enden", [this] { schließen(Schließgrund::Hand); })}},
        {"OMP_Optionen",
         "&Optionen",
         ohne_Index,
         nullptr,
         {{"UMP_autoshow",
           "beim Programm&start öffnen...",
           ohne_Index,
           nullptr,
           {Öffnen_beim_Start(1, "&Ja"), Öffnen_beim_Start(2, "&Nein"), Öffnen_beim_Start(3, "nur, wenn beim &Ende aktiv")}},
          Befehl("AOT", "Always on &Top",
                 [this] {
                     bool& oben = einstellungen_.Playlist_Always_on_top;
                     oben = !oben;
                     immer_oben(oben);
                     Haken_setzen();
                 }),
          Schalter("Position_merken", "&Position merken", &Einstellungen::Playlist_Position_merken),
          Schalter("minimieren", "Mit Datenbank &minimieren", &Einstellungen::Playlist_Minimieren)}},
    };
}

void Playlist::Haken_setzen() {
    menü_.nur_Haken("autoshow", einstellungen_.Playlist_autoshow, 1, 3);
    menü_("AOT").haken(einstellungen_.Playlist_Always_on_top);
    menü_("Position_merken").haken(einstellungen_.Playlist_Position_merken);
    menü_("minimieren").haken(einstellungen_.Playlist_Minimieren);
}

Knoten Playlist::anordnung() {
    return Spalte({Knoten(Liste).zeichen(24).zeilen(6).dehnen(1, 1),
                   Zeile({Liste_Anzahl_Text, Knoten(Liste_Anzahl).zeichen(5), Feder(), Reihenfolge, löschen, alle_löschen})})
        .rand(8 * Twips_je_Pixel);
}

// A damaged setting must not ask for more than there can be to see.
Größe Playlist::Startgröße() {
    const Größe schirm = ansicht().Bildschirm();
    return {std::min(einstellungen_.Playlist_Breite, schirm.breite), std::min(einstellungen_.Playlist_Höhe, schirm.höhe)};
}

// Loading has centred it, which is its place where the stored one is not wanted, or lies where nothing of the window could
// be seen. The size is remembered in any case.
void Playlist::beim_Laden() {
    const Größe schirm = ansicht().Bildschirm();
    const long long x = einstellungen_.Playlist_PositionX, y = einstellungen_.Playlist_PositionY;
    const bool zu_sehen = x < schirm.breite && y < schirm.höhe && x + lage().breite > 0 && y + lage().höhe > 0;
    if (einstellungen_.Playlist_Position_merken && zu_sehen)
        bewegen(einstellungen_.Playlist_PositionX, einstellungen_.Playlist_PositionY);
    immer_oben(einstellungen_.Playlist_Always_on_top);
    Haken_setzen();
    Playlist_gespeichert_ = true;
    einstellungen_.Playlist_Status = true;
}

bool Playlist::beim_Schließen(Schließgrund grund) {
    if (grund == Schließgrund::Hand && !Playlist_gespeichert_) {
        const Antwort antwort = ansicht().fragen_oder_abbrechen(
            "Playlist beenden", "Die aktuelle Playlist ist noch nicht gespeichert!" + Text(CRCR) +
                                    "Wollen sie diese noch vor dem beenden speichern?");
        if (antwort == Antwort::Abbrechen) return false;
        // On Yes the window closes even where nothing was saved in the end.
        if (antwort == Antwort::Ja) speichern();
    }
    // At the end of the user's session it counts as open, and comes back with the next start.
    if (grund != Schließgrund::außen) einstellungen_.Playlist_Status = false;
    return true;
}

void Playlist::Hauptfenster_schließt() {
    if (!geladen()) return;
    entladen();
    einstellungen_.Playlist_Status = true;
}

void Playlist::Hauptfenster_folgen(Fensterzustand haupt, bool im_Tray) {
    if (!geladen()) return;
    if (einstellungen_.Playlist_Minimieren) zustand(haupt);
    if (im_Tray)
        verstecken();
    else if (!sichtbar())
        zeigen();
}

void Playlist::zeigen_falls_nötig() {
    if (!geladen()) zeigen();
}

void Playlist::Lage_merken() {
    if (zustand() != Fensterzustand::normal) return;
    einstellungen_.Playlist_PositionX = lage().links;
    einstellungen_.Playlist_PositionY = lage().oben;
    einstellungen_.Playlist_Breite = lage().breite;
    einstellungen_.Playlist_Höhe = lage().höhe;
}

void Playlist::Lage_setzen(const Bereich& neue) {
    if (geladen()) {
        größe(neue.breite, neue.höhe);
        bewegen(neue.links, neue.oben);
    }
    einstellungen_.Playlist_PositionX = neue.links;
    einstellungen_.Playlist_PositionY = neue.oben;
    einstellungen_.Playlist_Breite = neue.breite;
    einstellungen_.Playlist_Höhe = neue.höhe;
}

}  // namespace tonkartei
