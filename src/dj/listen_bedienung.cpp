// The list area under the hand: its controls, tabs, buttons, keys and drags.
#include <algorithm>
#include <utility>

#include "datenbank/haus.hpp"
#include "dj/listen.hpp"

namespace tonkartei {
namespace {

constexpr Farbe Reiter_Grund = Grundfarbe(2), Reiter_Schrift = Grundfarbe(10);

}  // namespace

Listen::Listen(Fenster& f, Haus& haus)
    : Listen_Mode(f, "Listen_Mode", {"Liste", "Playlist", "Wunschliste"}),
      Schnellsuche(f, "Schnellsuche"),
      Liste(f, "Liste"),
      Listen_Taste(f, "Listen_Taste"),
      Kategorien_Rahmen(f, "Kategorien_Rahmen", "Kategorien"),
      Kategorie(f, "Kategorie"),
      Kategorie_Schema(f, "Kategorie_Schema", "&Schemas"),
      Kat_Schemas(f, "Kat_Schemas"),
      modell_(haus.modell),
      ansicht_(haus.ansicht),
      rechner_(haus.plattform.Rechner),
      suche_(haus.modell),
      wahl_(haus.modell, Kategorie) {
    Schnellsuche.leerbar = true;
    Schnellsuche.tooltip("sucht in Artist und Titel; Escape leert die Suche");
    const char* const Hilfen[] = {"löscht ein Lied aus der Liste", "ändert die Reihenfolge nach oben",
                                  "ändert die Reihenfolge nach unten", "speichert die Liste ab", "lädt ein Liste"};
    const char* const Bilder[] = {"löschen", "auf", "ab", "speichern", "öffnen"};
    for (int i = 1; i <= 5; ++i) {
        Listen_Taste[i].tooltip(Hilfen[i - 1]);
        Listen_Taste[i].Bild = Bilder[i - 1];
    }
    Listen_Mode[Playlist].tooltip("nimmt Lieder an, die auf sie gezogen werden");
    Listen_Mode[Wunschliste].tooltip("nimmt Lieder an, die auf sie gezogen werden");
    Liste[Suchliste].Vorlesename = "Lieder";
    Liste[Playlist].Vorlesename = "Playlist";
    Liste[Wunschliste].Vorlesename = "Wunschliste";
    Schnellsuche.Vorlesename = "Schnellsuche";
    Kat_Schemas.Vorlesename = "Schemas";
    for (Listenfeld& liste : Liste)
        liste.tooltip(
            "Lieder lassen sich auf Player und Listen ziehen; die Tasten 1 bis 4 laden das gewählte Lied in einen "
            "Player, P und W legen es in Playlist und Wunschliste");
    Kategorie_Schema.tooltip("wählt die Kategorien eines Schemas");
    Kat_Schemas.tooltip("Die Schemas der Datenbank");
    Kat_Schemas.sichtbar(false);
    verbinden();
}

void Listen::verbinden() {
    for (int i = 1; i <= 3; ++i) {
        Listen_Mode[i].Klick.verbinden([this, i] { zeige_Modus(i); });
        Liste[i].Tastendruck.verbinden([this, i](Taste& taste) { Taste_gedrückt(i, taste); });
        Liste[i].tag(Text(Listenmarke) + " " + Zahltext(i));
        Liste[i].Ziehmarke = Liste[i].tag();
    }
    for (const int liste : {Playlist, Wunschliste})
        Listen_Mode[liste].Abgelegt.verbinden([this, liste](Element& quelle) {
            if (const Long nr = Lied_aus_Tag(quelle.tag()); nr > 0) anhängen(liste, nr);
        });
    Listen_Taste[1].Klick.verbinden([this] { löschen(); });
    Listen_Taste[2].Klick.verbinden([this] { verschieben(-1); });
    Listen_Taste[3].Klick.verbinden([this] { verschieben(1); });
    Listen_Taste[4].Klick.verbinden([this] {
        if (Listen_Modus != Suchliste) speichern();
    });
    Listen_Taste[5].Klick.verbinden([this] {
        if (Listen_Modus != Suchliste) laden();
    });
    Schnellsuche.Geändert.verbinden([this] { erstelle_Suchliste(); });
    Schnellsuche.Tastendruck.verbinden([this](Taste& taste) {
        if (taste.art != Taste::Art::Escape) return;
        taste.erledigt = true;
        if (Schnellsuche.text().empty())
            erstelle_Suchliste();
        else
            Schnellsuche.text("");
    });
    wahl_.geändert.verbinden([this] { erstelle_Suchliste(); });
    Kategorie_Schema.Klick.verbinden([this] { zeige_Schemas(); });
    Kat_Schemas.Klick.verbinden([this] { Schema_gewählt(); });
    Kat_Schemas.Tastendruck.verbinden([this](Taste& taste) {
        if (taste.art != Taste::Art::Escape) return;
        taste.erledigt = true;
        Kat_Schemas.sichtbar(false);
    });
}

void Listen::beginnen() {
    suche_.vorbereiten();
    Lieder_Listen_ = {};
    wahl_.beschriften();
}

void Listen::eröffnen() {
    zeige_Modus(Suchliste);
    Kategorie[1].wert(true);
    zeige_Playlist();
    zeige_Wunschliste();
}

Knoten Listen::anordnung() {
    std::vector<Knoten> listen, tasten, reiter;
    for (int i = 1; i <= 3; ++i) {
        listen.push_back(Knoten(Liste[i]).zeichen(26).zeilen(10).Platz_halten().dehnen(1, 1));
        reiter.push_back(Knoten(Listen_Mode[i]).dehnen(1));
    }
    for (int i = 1; i <= 5; ++i) tasten.push_back(Knoten(Listen_Taste[i]).Platz_halten());
    tasten.push_back(Feder());
    return Spalte({Zeile(std::move(reiter)).lücke(2 * Twips_je_Pixel),
                   Überlagerung({Knoten(Schnellsuche).Platz_halten().dehnen(1), Zeile(std::move(tasten))}),
                   Überlagerung(std::move(listen)).dehnen(1, 3),
                   Gruppe(Kategorien_Rahmen,
                          Spalte({wahl_.anordnung(), Zeile({Kategorie_Schema, Knoten(Kat_Schemas).dehnen(1), Feder()})}))
                       .dehnen(1, 0)});
}

void Listen::zeige_Modus(int modus) {
    Listen_Modus = modus;
    for (int i = 1; i <= 3; ++i) {
        Liste[i].sichtbar(i == modus);
        Listen_Mode[i].hintergrund(i == modus ? Reiter_Grund : Farbe_Standard);
        Listen_Mode[i].farbe(i == modus ? Reiter_Schrift : Farbe_Standard);
    }
    Schnellsuche.sichtbar(modus == Suchliste);
    for (int i = 1; i <= 5; ++i) {
        const bool Reihenfolge = i == 2 || i == 3;
        Listen_Taste[i].sichtbar(modus == Playlist || (modus == Wunschliste && !Reihenfolge));
    }
}

// What the mouse does by dragging, for the keyboard.
void Listen::Taste_gedrückt(int liste, Taste& taste) {
    if (taste.art == Taste::Art::Löschen) {
        taste.erledigt = true;
        return löschen();
    }
    if (taste.art != Taste::Art::Zeichen) return;
    const Text zeichen = groß(taste.zeichen);
    const bool Player = zeichen >= "1" && zeichen <= "4";
    if (!Player && zeichen != "P" && zeichen != "W") return;
    taste.erledigt = true;
    const Long nr = Lied_aus_Tag(Liste[liste].tag());
    if (nr < 1) return;
    if (Player)
        zum_Player(zeichen[0] - '0', nr);
    else
        anhängen(zeichen == "P" ? Playlist : Wunschliste, nr);
}

void Listen::löschen() {
    if (Listen_Modus == Suchliste) return;
    std::vector<Long>& nummern = Lieder_Liste(Listen_Modus);
    const int i = Listen_Modus == Playlist ? Liste[Playlist].gewählt() + 1 : Wunsch_Position();
    if (i < 1 || i > static_cast<int>(nummern.size())) return;
    nummern.erase(nummern.begin() + i - 1);
    zeichnen(Listen_Modus);
}

void Listen::verschieben(int schritt) {
    if (Listen_Modus != Playlist) return;
    std::vector<Long>& nummern = Lieder_Liste(Playlist);
    const int i = Liste[Playlist].gewählt() + 1, ziel = i + schritt, länge = static_cast<int>(nummern.size());
    // The random line is beyond the songs and stays.
    if (i < 1 || i > länge || ziel < 1 || ziel > länge) return;
    std::swap(nummern[static_cast<std::size_t>(i - 1)], nummern[static_cast<std::size_t>(ziel - 1)]);
    zeige_Playlist();
    Liste[Playlist].wähle(ziel - 1);
}

void Listen::zeige_Schemas() {
    if (modell_.Anz_Kat_Schemas == 0) return;
    std::vector<Text> namen;
    for (int n = 1; n <= modell_.Anz_Kat_Schemas; ++n) namen.push_back(modell_.Schemas[n].Name);
    Kat_Schemas.setzen(std::move(namen));
    Kat_Schemas.sichtbar(true);
    ansicht_.fokus(Kat_Schemas);
}

void Listen::Schema_gewählt() {
    if (Kat_Schemas.gewählt() >= 0) wahl_.Schema_anwenden(Kat_Schemas.gewählt() + 1);
    Kat_Schemas.sichtbar(false);
}

}  // namespace tonkartei
