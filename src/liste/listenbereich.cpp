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
            if (taste.art != Taste::Art::Return) return;
            taste.erledigt = true;
            Zeile_ausführen();
        });
    const auto für_das_gezeigte = [this](Element& element, Ereignis<Long>& befehl) {
        element.Klick.verbinden([this, &befehl] {
            if (angezeigtes_Lied_ > 0) befehl(angezeigtes_Lied_);
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

void Listenbereich::aktualisiere_Liste() {
    if (Datenbank_Modus.wert() == 0)
        erstelle_Lieder_Liste();
    else
        erstelle_Alben_Liste();
}

void Listenbereich::erstelle_Lieder_Liste() {
    const Long gemerkt = Liste.Anzahl() > 0 && Liste.gewählt() >= 0 ? Lied_Nr(Liste.gewählt()) : 0;
    const auto nummern =
        ordnung_.gefilterte_Lieder(modell_, sortierung_, Schnellsuche.text(), [this](int k) { return zeigt_Kategorie(k); });
    Nr_Liste_setzen(nummern);
    if (!nummern.empty()) {
        erstelle_Liste_von_Nr_Liste();
        const auto fund = gemerkt > 0 ? std::find(nummern.begin(), nummern.end(), gemerkt) : nummern.end();
        if (fund != nummern.end()) {
            // The last line first: the song's line then comes to the top of what is visible.
            Liste.wähle(Liste.Anzahl() - 1);
            Liste.wähle(static_cast<int>(fund - nummern.begin()));
        }
    } else {
        Liste.leeren();
        Liste_Anzahl.beschriftung("0");
        Liste_Größe.beschriftung("0");
    }
    Einzelheiten_leeren();
}

void Listenbereich::Nr_Liste_setzen(const std::vector<long long>& nummern) {
    std::vector<Text> zeilen;
    zeilen.reserve(nummern.size());
    for (const long long nr : nummern) zeilen.push_back(Zahltext(nr));
    Nr_Liste.setzen(std::move(zeilen));
}

void Listenbereich::erstelle_Liste_von_Nr_Liste() {
    Liste.sichtbar(einstellungen_.bei_Listensuche_sichtbar);
    Listensumme summe;
    std::vector<Text> zeilen;
    zeilen.reserve(Nr_Liste.zeilen().size());
    for (const Text& nr : Nr_Liste.zeilen()) {
        const Lied& lied = std::as_const(modell_).Lieder[Nummer_von(nr)];
        zeilen.push_back(Listenzeile(lied, sortierung_));
        summe.dazu(lied);
    }
    Liste.setzen(std::move(zeilen));
    Summe_zeigen(Liste.Anzahl(), summe);
    Liste.sichtbar(true);
}

void Listenbereich::Summe_zeigen(int anzahl, const Listensumme& summe) {
    Liste_Anzahl.beschriftung(Zahltext(anzahl));
    Liste_Größe.beschriftung(Zahltext(summe.KByte / 1024));
    Liste_Dauer.beschriftung(Dauer_Text(static_cast<double>(summe.Sekunden)));
}

// All albums, whatever the search holds. None of them is chosen, so there are no titles and no totals.
void Listenbereich::erstelle_Alben_Liste() {
    Liste2.hinausfahren();
    Liste2.leeren();
    const auto nummern = modell_.Alben_geladen ? sortierte_Alben(alben_) : std::vector<long long>{};
    Nr_Liste_setzen(nummern);
    std::vector<Text> zeilen;
    zeilen.reserve(nummern.size());
    for (const long long nr : nummern) zeilen.push_back(Album_Zeile(alben_.Alben[nr]));
    Liste.setzen(std::move(zeilen));
    Liste_Anzahl.beschriftung("---");
    Liste_Größe.beschriftung("");
    Liste_Dauer.beschriftung("");
    // The song whose details stand there may be one of a collection that is no longer open.
    Einzelheiten_leeren();
}

void Listenbereich::zeige_Album(Long Nr) {
    const Album& album = alben_.Alben[Nr];
    Liste2.setzen(Titelzeilen(album));
    Listensumme summe;
    for (int t = 1; t <= album.Titel_Anzahl; ++t)
        if (const Long lied = Lied_von(modell_, album.Lieder[t]); lied > 0) summe.dazu(modell_.Lieder[lied]);
    Summe_zeigen(Liste2.Anzahl(), summe);
    Liste2.hineinfahren();
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

// After a rebuild no details are shown, even where the choice was restored, until the next click. The song's time stays.
void Listenbereich::Einzelheiten_leeren() {
    angezeigtes_Lied_ = 0;
    for (Schriftfeld* feld : {&Titel, &Artist, &Anzahl, &Lied_Größe}) feld->beschriftung("");
    Reset_Anzahl.aktiv(false);
    kategorien_.Lied_Kategorie.aktiv(false);
    kategorien_.Farben_zurücksetzen();
}

Long Listenbereich::Lied_Nr(int Index) const { return Nummer_von(Nr_Liste.zeile(Index)); }

Long Listenbereich::gewähltes_Lied() const {
    if (Datenbank_Modus.wert() == 1) return Album_Lied_Nr();
    return Liste.gewählt() >= 0 ? Lied_Nr(Liste.gewählt()) : 0;
}

Long Listenbereich::gemeintes_Lied() const {
    if (!modell_.Datenbank_offen) return 0;
    const Long gewählt = gewähltes_Lied();
    const Long nr = gewählt > 0 ? gewählt : angezeigtes_Lied_;
    // A special list may hold numbers of a collection that is no longer open.
    return nr <= modell_.Anzahl_Lieder ? nr : 0;
}

bool Listenbereich::zeigt_Kategorie(int k) const { return kategorien_.zeige_Kategorie(k).wert(); }

std::vector<Long> Listenbereich::Lieder_in_Liste() const {
    std::vector<Long> nummern;
    // The numbers of the other tab are those of albums.
    if (Datenbank_Modus.wert() != 0 || !modell_.Datenbank_offen) return nummern;
    std::vector<bool> dabei(static_cast<std::size_t>(modell_.Anzahl_Lieder) + 1);
    for (const Text& zeile : Nr_Liste.zeilen()) {
        const Long nr = Nummer_von(zeile);
        if (nr < 1 || nr > modell_.Anzahl_Lieder || dabei[static_cast<std::size_t>(nr)]) continue;
        dabei[static_cast<std::size_t>(nr)] = true;
        nummern.push_back(nr);
    }
    return nummern;
}

std::vector<Listenlied> Listenbereich::Lieder_im_Blick() const {
    std::vector<Listenlied> lieder;
    if (Datenbank_Modus.wert() == 0) {
        lieder.reserve(Nr_Liste.zeilen().size());
        for (const Text& zeile : Nr_Liste.zeilen()) lieder.push_back({static_cast<int>(lieder.size()), Nummer_von(zeile)});
    } else if (const Long album = Album_Nr(); album > 0) {
        const Album& a = alben_.Alben[album];
        for (int t = 1; t <= a.Titel_Anzahl; ++t)
            if (const Long nr = Lied_von(modell_, a.Lieder[t]); nr > 0) lieder.push_back({t - 1, nr});
    }
    return lieder;
}

void Listenbereich::wähle_Lied(Long Nr) {
    const auto& zeilen = Nr_Liste.zeilen();
    int zeile = static_cast<int>(zeilen.size()) - 1;
    while (zeile > 0 && Nummer_von(zeilen[static_cast<std::size_t>(zeile)]) != Nr) --zeile;
    if (zeile >= 0) Liste.wähle(zeile);
}

Long Listenbereich::Album_Nr() const {
    if (Datenbank_Modus.wert() != 1 || !modell_.Alben_geladen || Liste.gewählt() < 0) return 0;
    const Long nr = Lied_Nr(Liste.gewählt());
    // A special list of songs may stand in this tab.
    return nr <= alben_.Anzahl ? nr : 0;
}

Long Listenbereich::Album_Lied_Nr() const {
    const Long nr = Album_Nr();
    return nr > 0 && Liste2.gewählt() >= 0 ? Lied_von(modell_, alben_.Alben[nr].Lieder[Liste2.gewählt() + 1]) : 0;
}

void Listenbereich::Zeile_gewählt() {
    if (Liste.gewählt() < 0) return;
    if (Datenbank_Modus.wert() == 0)
        zeige_Lied(Lied_Nr(Liste.gewählt()));
    else if (const Long nr = Album_Nr(); nr > 0)
        zeige_Album(nr);
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
