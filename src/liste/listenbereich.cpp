#include "liste/listenbereich.hpp"

#include <algorithm>
#include <utility>

#include "alben/albenraum.hpp"
#include "datenbank/haus.hpp"
#include "kategorien/kategorienbereich.hpp"
#include "liste/alben_liste.hpp"
#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/fenster.hpp"

namespace tonkartei {
Listenbereich::Listenbereich(Fenster& f, Haus& haus, Albenraum& alben, Kategorienbereich& kategorien)
    : Datenbank_Modus(f, "Datenbank_Modus", {"Lieder", "Alben"}),
      sortieren_Text(f, "sortieren_Text", "sortieren:"),
      sortieren_Titel(f, "sortieren", "Titel", 1),
      sortieren_Artist(f, "sortieren", "Artist", 2),
      Schnellsuche_Text(f, "Schnellsuche_Text", "Schnells&uche:"),
      Schnellsuche(f, "Schnellsuche"),
      Liste(f, "Liste"),
      Nr_Liste(f, "Nr_Liste"),
      Liste2(f, "Liste2", Liste, haus.einstellungen, haus.plattform.Rechner),
      Liste_Anzahl_Text(f, "Liste_Anzahl_Text", "Lieder:"),
      Liste_Anzahl(f, "Liste_Anzahl", "0"),
      Liste_Größe_Text(f, "Liste_Größe_Text", "MB:"),
      Liste_Größe(f, "Liste_Größe", "0"),
      Liste_Dauer_Text(f, "Liste_Dauer_Text", "Dauer:"),
      Liste_Dauer(f, "Liste_Dauer"),
      Lied_Rahmen(f, "Lied_Rahmen", "Lied"),
      Titel_Text(f, "Titel_Text", "Titel:"),
      Titel(f, "Titel"),
      Artist_Text(f, "Artist_Text", "Artist:"),
      Artist(f, "Artist"),
      Anzahl_Text(f, "Anzahl_Text", "Anzahl:"),
      Anzahl(f, "Anzahl"),
      Lied_Größe_Text(f, "Lied_Größe_Text", "kBytes:"),
      Lied_Größe(f, "Lied_Größe"),
      Lied_Zeit_Text(f, "Lied_Zeit_Text", "Zeit:"),
      Lied_Zeit(f, "Lied_Zeit"),
      Reset_Anzahl(f, "Reset_Anzahl", "Rese&t"),
      Lied_Kategorie_Text(f, "Lied_Kategorie_Text", "Kate&gorie:"),
      fenster_(f),
      modell_(haus.modell),
      einstellungen_(haus.einstellungen),
      alben_(alben.alben.eigene),
      albenbefehle_(alben.befehle),
      kategorien_(kategorien) {
    sortieren_Titel.tooltip("Zeigt den Titel des Liedes vorne an und sortiert die Liste danach");
    sortieren_Artist.tooltip("Zeigt den Artist des Liedes vorne an und sortiert die Liste danach");
    Liste.Vorlesename = "Lieder";
    Schnellsuche.leerbar = true;
    Schnellsuche.tooltip("Lieder in der Liste enthalten diesen Text");
    Reset_Anzahl.tooltip("ändert, wie oft das Lied gehört wurde");
    Reset_Anzahl.aktiv(false);
    Nr_Liste.unsichtbarer_Helfer = true;
    for (Schriftfeld* wert :
         {&Liste_Anzahl, &Liste_Größe, &Liste_Dauer, &Titel, &Artist, &Anzahl, &Lied_Größe, &Lied_Zeit}) {
        wert->eingerahmt = true;
        wert->wie_Daten = true;
    }
    for (Schriftfeld* zahl : {&Liste_Anzahl, &Liste_Größe, &Liste_Dauer, &Anzahl, &Lied_Größe, &Lied_Zeit})
        zahl->ausrichtung = Schriftfeld::Ausrichtung::rechts;

    Datenbank_Modus.Klick.verbinden([this] { Tab_gewechselt(); });
    sortieren_Titel.Klick.verbinden([this] { Sortierung_wählen(Sortierung::Titel); });
    sortieren_Artist.Klick.verbinden([this] { Sortierung_wählen(Sortierung::Artist); });
    Schnellsuche.Geändert.verbinden([this] { Suche_geändert(); });
    Schnellsuche.Tastendruck.verbinden([this](Taste& taste) { Suchtaste(taste); });
    Liste.Klick.verbinden([this] { Zeile_gewählt(); });
    Liste.Doppelklick.verbinden([this] { Zeile_ausführen(); });
    Liste2.Klick.verbinden([this] { Titel_gewählt(); });
    Liste2.Doppelklick.verbinden([this] { Zeile_ausführen(); });
    for (Listenfeld* liste : {&Liste, static_cast<Listenfeld*>(&Liste2)})
        liste->Tastendruck.verbinden([this](Taste& taste) {
            if (taste.art == Taste::Art::F2) Titel.Klick();
            if (taste.art != Taste::Art::Return) return;
            taste.erledigt = true;
            Zeile_ausführen();
        });
    const auto für_das_gezeigte = [this](Element& element, Ereignis<Long>& befehl) {
        element.Klick.verbinden([this, &befehl] {
            if (const Long nr = brauchbar(angezeigtes_Lied_); nr > 0) befehl(nr);
        });
    };
    für_das_gezeigte(Reset_Anzahl, Anzahl_ändern);
    für_das_gezeigte(Anzahl, Anzahl_ändern);
    für_das_gezeigte(Titel, Titel_ändern);
    für_das_gezeigte(Artist, Artist_ändern);
    Titel.tooltip("ändert den Titel des Liedes");
    Artist.tooltip("ändert den Artist des Liedes");
    Anzahl.tooltip(Reset_Anzahl.tooltip());
}

Knoten Listenbereich::Listenknoten() {
    return Spalte({Zeile({Datenbank_Modus, Feder(), sortieren_Text, sortieren_Titel, sortieren_Artist}),
                   Zeile({Schnellsuche_Text, Knoten(Schnellsuche).dehnen(1)}),
                   Überlagerung({Knoten(Liste).zeilen(24).zeichen(44), Knoten(Liste2)}).dehnen(1, 1),
                   Zeile({Liste_Anzahl_Text, Knoten(Liste_Anzahl).zeichen(6).dehnen(1), Liste_Größe_Text,
                          Knoten(Liste_Größe).zeichen(6).dehnen(1), Liste_Dauer_Text,
                          Knoten(Liste_Dauer).zeichen(6).dehnen(1)})})
        .dehnen(1, 1);
}

Knoten Listenbereich::Liedknoten(Auswahlfeld& Lied_Kategorie) {
    return Gruppe(
        Lied_Rahmen,
        Spalte({Gitter(2, {Titel_Text, Knoten(Titel).zeichen(30).dehnen(1), Artist_Text,
                           Knoten(Artist).zeichen(30).dehnen(1), Lied_Kategorie_Text, Knoten(Lied_Kategorie).dehnen(1)}),
                Zeile({Anzahl_Text, Knoten(Anzahl).zeichen(5).dehnen(1), Reset_Anzahl, Lied_Größe_Text,
                       Knoten(Lied_Größe).zeichen(6).dehnen(1), Lied_Zeit_Text, Knoten(Lied_Zeit).zeichen(5).dehnen(1)})}));
}

void Listenbereich::freie_Lage() { Liste2.Lage_nachführen(); }

void Listenbereich::Sortierung_wählen(Sortierung sortierung) {
    sortierung_ = sortierung;
    aktualisiere_Liste();
}

void Listenbereich::Sicht_zurücksetzen() {
    sortieren_Artist.wählen();
    Schnellsuche.text("");
}

void Listenbereich::Zeile_gewählt() {
    if (Liste.gewählt() < 0) return;
    if (Datenbank_Modus.wert() == 0)
        zeige_Lied(Lied_Nr(Liste.gewählt()));
    else if (const Long nr = Album_Nr(); nr > 0)
        zeige_Album(nr);
}

void Listenbereich::Titel_gewählt() {
    if (Album_Nr() < 1) return;
    if (const Long lied = Album_Lied_Nr(); lied > 0) {
        zeige_Lied(lied);
        return;
    }
    Einzelheiten_leeren();
    Titel.beschriftung(">>> nicht in Datenbank <<<");
    Lied_Zeit.beschriftung("");
}

void Listenbereich::zeige_Lied(Long Nr) {
    const Lied& lied = modell_.Lieder[Nr];
    angezeigtes_Lied_ = Nr;
    Titel.beschriftung(und_verdoppelt(lied.Titel));
    Artist.beschriftung(und_verdoppelt(lied.Artist));
    Anzahl.beschriftung(Zahltext(lied.Anzahl));
    Lied_Größe.beschriftung(Zahltext(lied.Größe));
    Lied_Zeit.beschriftung(Minuten_Sekunden(lied.Zeit));
    Reset_Anzahl.aktiv(true);
    kategorien_.Lied_Kategorie.aktiv(true);
    // A song whose category was removed has none until the user has picked the new one.
    const bool da = lied.Kategorie >= 1 && lied.Kategorie <= kategorien_.Lied_Kategorie.Anzahl();
    kategorien_.Lied_Kategorie.wähle(da ? lied.Kategorie - 1 : -1);
    // Also where the category is the one of the song before: the rebuild has taken the colours away.
    kategorien_.zeige_Kategorie_Farben();
}

void Listenbereich::Anzahl_auffrischen(Long Nr) {
    if (Liste.Anzahl() > 0 && Liste.gewählt() == Nr - 1) Anzahl.beschriftung(Zahltext(modell_.Lieder[Nr].Anzahl));
}

void Listenbereich::Zeile_ausführen() {
    const Long nr = gewähltes_Lied();
    if (nr < 1) return;
    if (einstellungen_.Liste_Doppelklick >= 2) zur_Playlist(nr);
    if (einstellungen_.Liste_Doppelklick != 2) Lied_starten(nr);
}

void Listenbereich::Suche_geändert() {
    const auto zeichen = Zeichenzahl(Schnellsuche.text());
    if (zeichen == 0 || zeichen >= einstellungen_.Listensuche_Anzahl_Buchstaben) aktualisiere_Liste();
}

void Listenbereich::Suchtaste(Taste& taste) {
    const int letzte = Liste.Anzahl() - 1;
    switch (taste.art) {
        case Taste::Art::Auf:
            if (letzte >= 0) Liste.wähle(Liste.gewählt() >= 0 ? Liste.gewählt() - 1 : letzte);
            break;
        case Taste::Art::Ab:
            if (letzte >= 0) Liste.wähle(Liste.gewählt() < letzte ? Liste.gewählt() + 1 : 0);
            break;
        case Taste::Art::Return: Start_gewünscht(); break;
        case Taste::Art::F2: Titel.Klick(); break;
        case Taste::Art::Escape: Schnellsuche.text(""); break;
        default: return;
    }
    taste.erledigt = true;
}

void Listenbereich::Tab_gewechselt() {
    if (Datenbank_Modus.wert() == 1 && !albenbefehle_.Ansicht_öffnen()) {
        Datenbank_Modus.wert(0);  // comes back here and rebuilds
        return;
    }
    if (Datenbank_Modus.wert() == 0) {
        Liste2.hinausfahren();
        Liste2.leeren();
    }
    // What was chosen is of the other kind: an album's number must not come back as a song's.
    Liste.wähle(-1);
    aktualisiere_Liste();
}

void Listenbereich::Schnellsuche_fokussieren() {
    // A list that changes by itself takes nothing from the dialog that the user is in.
    if (fenster_.zustand() == Fensterzustand::normal && fenster_.aktiv()) fenster_.ansicht().fokus(Schnellsuche);
}

}  // namespace tonkartei
