#include "oberflaeche/element.hpp"

#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/fenster.hpp"

namespace tonkartei {

Element::Element(Fenster& fenster, Elementart art, Text name, Text beschriftung, int index)
    : fenster_(fenster), art_(art), name_(std::move(name)), index_(index) {
    z_.beschriftung = std::move(beschriftung);
    fenster_.elemente_.push_back(this);
}

Element::~Element() {
    auto& alle = fenster_.elemente_;
    for (auto i = alle.size(); i > 0; --i) {
        if (alle[i - 1] == this) {
            alle.erase(alle.begin() + static_cast<std::ptrdiff_t>(i - 1));
            break;
        }
    }
    fenster_.ansicht().Element_verschwindet(*this);
}

Text Element::voller_Name() const { return index_ < 0 ? name_ : name_ + "(" + std::to_string(index_) + ")"; }

void Element::melden(unsigned änderung) {
    if (fenster_.geladen()) fenster_.ansicht().Element_geändert(*this, änderung);
}

void Element::beschriftung(Text wert) {
    if (z_.beschriftung == wert) return;
    z_.beschriftung = std::move(wert);
    melden(Änderung_Aussehen);
}

void Element::tooltip(Text wert) {
    if (z_.tooltip == wert) return;
    z_.tooltip = std::move(wert);
    melden(Änderung_Aussehen);
}

void Element::sichtbar(bool wert) {
    if (z_.sichtbar == wert) return;
    z_.sichtbar = wert;
    if (!frei) fenster_.neu_anordnen();
    melden(Änderung_Lage);
}

void Element::aktiv(bool wert) {
    if (z_.aktiv == wert) return;
    z_.aktiv = wert;
    melden(Änderung_Aussehen);
}

void Element::farbe(Farbe wert) {
    if (z_.farbe == wert) return;
    z_.farbe = wert;
    melden(Änderung_Aussehen);
}

void Element::hintergrund(Farbe wert) {
    if (z_.hintergrund == wert) return;
    z_.hintergrund = wert;
    melden(Änderung_Aussehen);
}

void Element::schrift(int punkte) {
    if (z_.schrift == punkte) return;
    z_.schrift = punkte;
    melden(Änderung_Aussehen);
}

void Element::fett(bool wert) {
    if (z_.fett == wert) return;
    z_.fett = wert;
    melden(Änderung_Aussehen);
}

void Element::lage(const Bereich& wert) {
    if (z_.lage == wert) return;
    z_.lage = wert;
    melden(Änderung_Lage);
}

bool Element::zu_sehen() const noexcept {
    for (const Element* e = this; e != nullptr; e = e->rahmen_)
        if (!e->z_.sichtbar) return false;
    return !unsichtbarer_Helfer;
}

bool Element::bedienbar() const noexcept {
    for (const Element* e = this; e != nullptr; e = e->rahmen_)
        if (!e->z_.aktiv) return false;
    return zu_sehen();
}

bool Element::nimmt_Fokus() const noexcept {
    switch (art_) {
        case Elementart::Schrift:
        case Elementart::Rahmen:
        case Elementart::Menü:
        case Elementart::Fläche:
        case Elementart::Balken:
        case Elementart::Symbol: return false;
        default: return bedienbar();
    }
}

}  // namespace tonkartei
