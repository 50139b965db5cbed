#include "programm/hauptmenue.hpp"

#include "programm/menuetafel.hpp"

namespace tonkartei {

Hauptmenü::Hauptmenü(Fenster& fenster, Einstellungen& einstellungen)
    : einstellungen_(einstellungen), menü_(fenster, Menütafel()) {}

void Hauptmenü::Befehl(const Text& name, std::function<void()> befehl, int index) {
    Menüpunkt& punkt = menü_(name, index);
    punkt.aktiv(true);
    punkt.Klick.verbinden(befehl);
    befehle_[&punkt] = std::move(befehl);
}

void Hauptmenü::Schalter(const Text& name, bool Einstellungen::*schalter, const std::function<void()>& danach) {
    Befehl(name, [this, schalter, danach] {
        einstellungen_.*schalter = !(einstellungen_.*schalter);
        nachführen();
        if (danach) danach();
    });
    Haken(name, [this, schalter] { return einstellungen_.*schalter; });
}

void Hauptmenü::Wahl(const Text& name, Byte Einstellungen::*wahl, int letzter) {
    for (int n = 1; n <= letzter; ++n) {
        const auto wählen = [this, wahl, n] {
            einstellungen_.*wahl = als_Byte(n);
            nachführen();
        };
        Befehl(name, wählen, n);
    }
    nur_Haken(name, 1, letzter, [this, wahl] { return int{einstellungen_.*wahl}; });
}

void Hauptmenü::Haken(const Text& name, std::function<bool()> gesetzt) {
    haken_.push_back([&punkt = menü_(name), gesetzt = std::move(gesetzt)] { punkt.haken(gesetzt()); });
}

void Hauptmenü::nur_Haken(const Text& name, int von, int bis, std::function<int()> welcher) {
    haken_.push_back([this, name, von, bis, welcher = std::move(welcher)] { menü_.nur_Haken(name, welcher(), von, bis); });
}

void Hauptmenü::nachführen() const {
    for (const auto& haken : haken_) haken();
}

void Hauptmenü::ausführen(const Text& name, int index) const {
    const Menüpunkt& punkt = menü_(name, index);
    if (const auto befehl = befehle_.find(&punkt); befehl != befehle_.end() && punkt.aktiv()) befehl->second();
}

}  // namespace tonkartei
