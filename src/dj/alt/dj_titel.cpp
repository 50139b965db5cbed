#include "dj/alt/dj_titel.hpp"

#include "datenbank/modell.hpp"
#include "dj/alt/farben.hpp"
#include "oberflaeche/ansicht.hpp"
#include "wiedergabe/winamp/spielerfenster.hpp"

namespace tonkartei {
namespace {

constexpr int größte_Schrift = 72, kleinste_Schrift = 6;

}  // namespace

DJ_Titel::DJ_Titel(Ansicht& ansicht, int nummer, Spielerfenster& spieler, Rechner& rechner)
    : Fenster(ansicht, "DJ_Titel" + Zahltext(nummer), "Player " + Zahltext(nummer)), spieler_(spieler), rechner_(rechner) {
    hintergrund = Pultgrund;
    for (Schriftfeld* feld : {&Titel, &Artist}) {
        feld->frei = true;
        feld->wie_Daten = true;
        feld->ausrichtung = Schriftfeld::Ausrichtung::Mitte;
    }
    Titel.fett(true);
    WinAmp_Position.griffig = true;
    WinAmp_Position.tooltip("Position im Lied; ein kurzer Klick springt dorthin");
    // There is nothing for a longer press: a drag of the knob does not seek, and the next tick puts it back.
    WinAmp_Position.Gedrückt.verbinden([this](int, int) { griff_.drücken(rechner_.jetzt()); });
    WinAmp_Position.Losgelassen.verbinden([this](int x, int) {
        if (!griff_.loslassen(rechner_.jetzt()) || WinAmp_Position.breite() <= 0) return;
        spieler_.springen(gerundet(Sekunde_am_Klick(x, WinAmp_Position.breite(), WinAmp_Position.max()) * 1000));
    });
}

Knoten DJ_Titel::anordnung() {
    return Spalte({Knoten(Titel_Platz).mindestens(3000, 600).dehnen(1, 1),
                   Knoten(Artist_Platz).mindestens(3000, 600).dehnen(1, 1), Knoten(WinAmp_Position).dehnen(1)});
}

void DJ_Titel::zeigen_Lied(const Lied& lied) {
    Artist.beschriftung(und_verdoppelt(lied.Artist));
    Titel.beschriftung(und_verdoppelt(lied.Titel));
}

int DJ_Titel::passende_Schrift(const Bereich& platz) const {
    const Text breiter(30, 'A');
    int schrift = größte_Schrift;
    while (schrift > kleinste_Schrift &&
           (ansicht().Texthöhe(schrift) > platz.höhe || ansicht().Textbreite(breiter, schrift) > platz.breite))
        --schrift;
    return schrift;
}

void DJ_Titel::bei_neuer_Anordnung() {
    const auto legen = [this](Schriftfeld& feld, const Rahmen& platz) {
        feld.lage(platz.lage());
        feld.schrift(passende_Schrift(platz.lage()));
    };
    legen(Titel, Titel_Platz);
    legen(Artist, Artist_Platz);
}

}  // namespace tonkartei
