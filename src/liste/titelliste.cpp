#include "liste/titelliste.hpp"

#include "oberflaeche/fenster.hpp"

namespace tonkartei {
namespace {

constexpr int Schritte = 15;
constexpr int Schritt_ms = 10;

}  // namespace

Titelliste::Titelliste(Fenster& f, Text name, const Listenfeld& liste, const Einstellungen& einstellungen, Rechner& rechner)
    : Listenfeld(f, std::move(name)), liste_(liste), einstellungen_(einstellungen), rechner_(rechner) {
    frei = true;
    Vorlesename = "Titel des Albums";
    sichtbar(false);
}

// So many steps of the whole way are out.
void Titelliste::ausfahren(int schritt) {
    const Bereich& l = liste_.lage();
    const int ganz = l.höhe - l.höhe / 5;
    const int höhe = ganz * schritt / Schritte;
    lage({l.links, l.oben + l.höhe - höhe, l.breite, höhe});
}

void Titelliste::Lage_nachführen() { ausfahren(Schritte); }

bool Titelliste::bewegt() const { return einstellungen_.Alben_Liste_animiert && fenster().sichtbar(); }

void Titelliste::Schritt_zeigen(int schritt) {
    ausfahren(schritt);
    fenster().malen();
    rechner_.Sleep(Schritt_ms);
}

void Titelliste::hineinfahren() {
    if (sichtbar()) return;
    ausfahren(bewegt() ? 0 : Schritte);
    sichtbar(true);
    if (!bewegt()) return;
    for (int schritt = 1; schritt <= Schritte; ++schritt) Schritt_zeigen(schritt);
}

void Titelliste::hinausfahren() {
    if (!sichtbar()) return;
    if (bewegt())
        for (int schritt = Schritte - 1; schritt >= 0; --schritt) Schritt_zeigen(schritt);
    sichtbar(false);
    Lage_nachführen();
}

}  // namespace tonkartei
