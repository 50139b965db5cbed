#include "dj/alt/dj_liste.hpp"

#include "dj/alt/dj_kategorien.hpp"
#include "dj/alt/farben.hpp"
#include "dj/zufall.hpp"
#include "liste/lieder_liste.hpp"
#include "liste/sortierung.hpp"

namespace tonkartei {
namespace {

constexpr int Stellen = 4;

}  // namespace

DJ_Liste::DJ_Liste(Ansicht& ansicht, const Modell& modell, DJ_Kategorien& kategorien, Rechner& rechner)
    : Fenster(ansicht, "DJ_Liste", "Lieder"), modell_(modell), kategorien_(kategorien), rechner_(rechner), suche_(modell) {
    hintergrund = Pultgrund;
    Nr_Liste.unsichtbarer_Helfer = true;
    Nr_Liste.sichtbar(false);
    Liste.tag("Tonkartei - DJ-Modus (Alt) Liste");
    Liste.Ziehmarke = Liste.tag();
    Liste.Vorlesename = "Lieder";
    Liste.tooltip(
        "Lieder lassen sich auf die Player und in die gewünschten Lieder ziehen; die Tasten 1 und 2 laden das "
        "gewählte Lied in einen Player, W legt es in die Wünsche");
    Schnellsuche.leerbar = true;
    Schnellsuche.tooltip("sucht in Artist und Titel; Escape leert die Suche");
    Schnellsuche.Geändert.verbinden([this] { erstelle_Liste(); });
    Schnellsuche.Tastendruck.verbinden([this](Taste& taste) {
        if (taste.art != Taste::Art::Escape) return;
        taste.erledigt = true;
        if (Schnellsuche.text().empty())
            erstelle_Liste();
        else
            Schnellsuche.text("");
    });
    kategorien_.Wahl.geändert.verbinden([this] { erstelle_Liste(); });
}

Knoten DJ_Liste::anordnung() {
    return Spalte({Zeile({Schnellsuche_Text, Knoten(Schnellsuche).zeichen(8).dehnen(1)}),
                   Knoten(Liste).zeichen(30).zeilen(12).dehnen(1, 1)});
}

void DJ_Liste::beim_Laden() { suche_.vorbereiten(); }

void DJ_Liste::erstelle_Liste() {
    if (!geladen()) return;
    Sortier_Liste ordnung;
    for (const Long nr : suche_.passende(Schnellsuche.text(), [this](int k) { return kategorien_.Wahl.zeigt(k); }))
        ordnung.hinzufügen(Listenzeile(modell_.Lieder[nr], Sortierung::Artist), {}, nr, Stellen);
    std::vector<Text> zeilen, nummern;
    for (const long long nr : ordnung.sortierte_Nummern()) {
        zeilen.push_back(Listenzeile(modell_.Lieder[nr], Sortierung::Artist));
        nummern.push_back(Zahl_mit_Nullen(nr, Stellen));
    }
    Liste.setzen(std::move(zeilen));
    Nr_Liste.setzen(std::move(nummern));
}

Long DJ_Liste::gewähltes_Lied() const { return Liste.gewählt() < 0 ? 0 : Nummer_von(Nr_Liste.zeile(Liste.gewählt())); }

Long DJ_Liste::Zufalls_Nr() {
    if (Nr_Liste.Anzahl() == 0) return 0;
    return Nummer_von(Nr_Liste.zeile(Zufall(rechner_, 1, Nr_Liste.Anzahl()) - 1));
}

}  // namespace tonkartei
