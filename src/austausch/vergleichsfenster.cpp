#include "austausch/vergleichsfenster.hpp"

#include <algorithm>

namespace tonkartei {
namespace {

constexpr int Stellen = 4;
constexpr std::size_t Name_ab = 2 * Stellen + 1;

}  // namespace

Text Vergleichszeile(Long Quelle, Long Eigene, const Text& Artist, const Text& Titel) {
    return Zahl_mit_Nullen(Quelle, Stellen) + Zahl_mit_Nullen(Eigene, Stellen) + Artist + " - " + Titel;
}

Long Quell_Nr(const Text& zeile) { return gerundet(Zahlwert(links(zeile, Stellen))); }

Text Vergleichsname(const Text& zeile) { return ab(zeile, Name_ab); }

Vergleichsfenster::Vergleichsfenster(tonkartei::Ansicht& ansicht, Text name, Text titel)
    : Fenster(ansicht, std::move(name), std::move(titel)) {
    for (Listenfeld* helfer : {&fehlende, &andere}) {
        helfer->unsichtbarer_Helfer = true;
        helfer->sichtbar(false);
    }
    Liste.Vorlesename = "Lieder";
    anzeigen[0].tooltip("Die Lieder, die es in dieser Datenbank nicht gibt");
    anzeigen[1].tooltip("Die Lieder, die es hier mit anderem Namen, anderer Größe oder anderem Datum gibt");
    for (int i = 0; i < 2; ++i)
        anzeigen[i].Klick.verbinden([this, i] {
            Ansicht_Nr = i == 0 ? zeigt_fehlende : zeigt_andere;
            Liste_füllen();
        });
}

void Vergleichsfenster::zeigen(Vergleichsergebnisse ergebnisse) {
    laden();
    gleiche.beschriftung(Zahltext(ergebnisse.gleiche));
    fehlende.setzen(std::move(ergebnisse.fehlende));
    andere.setzen(std::move(ergebnisse.andere));
    anzeigen[0].wählen();
    Fenster::zeigen();
}

void Vergleichsfenster::Liste_füllen() {
    std::vector<Text> namen;
    for (const Text& zeile : gezeigte().zeilen()) namen.push_back(Vergleichsname(zeile));
    Liste.setzen(std::move(namen));
    Liste_Anzahl.beschriftung(Zahltext(Liste.Anzahl()));
}

Text Vergleichsfenster::gewählte_Zeile() { return Liste.gewählt() < 0 ? Text{} : gezeigte().zeile(Liste.gewählt()); }

void Vergleichsfenster::Zeile_entfernen(int zeile) {
    gezeigte().entfernen(zeile);
    Liste.entfernen(zeile);
    Liste_Anzahl.beschriftung(Zahltext(Liste.Anzahl()));
    // The next one moves up under the hand.
    if (Liste.Anzahl() > 0) Liste.wähle(std::min(zeile, Liste.Anzahl() - 1));
}

Knoten Vergleichsfenster::Listenknoten() {
    return Spalte({Zeile({anzeigen[0], anzeigen[1], Feder()}), Knoten(Liste).zeichen(46).zeilen(14).dehnen(1, 1),
                   Zeile({Liste_Anzahl_Text, Knoten(Liste_Anzahl).zeichen(5), Feder(), gleiche_Text,
                          Knoten(gleiche).zeichen(5)})})
        .dehnen(1, 1);
}

}  // namespace tonkartei
