#include "programm/mausmarkierung.hpp"

#include "datenbank/einstellungen.hpp"
#include "grundlagen/waehrend.hpp"
#include "oberflaeche/element.hpp"
#include "oberflaeche/fenster.hpp"
#include "wiedergabe/fernsteuerung.hpp"

namespace tonkartei {
namespace {

// What can be worked: labels that only tell something, frames and pictures have no number.
bool bekommt_Nummer(const Element& element) {
    switch (element.art()) {
        case Elementart::Rahmen:
        case Elementart::Menü:
        case Elementart::Fläche:
        case Elementart::Balken:
        case Elementart::Symbol: return false;
        case Elementart::Schrift: return element.Klick.hat_Hörer();
        default: return !element.unsichtbarer_Helfer;
    }
}

}  // namespace

Mausmarkierung::Mausmarkierung(Fenster& fenster, const Einstellungen& einstellungen, Fernsteuerung& fernsteuerung)
    : fenster_(fenster), einstellungen_(einstellungen), fernsteuerung_(fernsteuerung) {}

void Mausmarkierung::anschließen() {
    int nummer = 0;
    for (Element* element : fenster_.elemente()) {
        if (element->art() == Elementart::Menü || element->art() == Elementart::Symbol) continue;
        if (element->Mausnummer == 0 && bekommt_Nummer(*element)) {
            if (++nummer == Fernsteuerung::erste_Mausnummer) nummer = Fernsteuerung::letzte_Mausnummer + 1;
            element->Mausnummer = nummer;
        }
        element->Mausbewegung.verbinden([this, element](int, int) { Mousemove_Effekt(element->Mausnummer); });
    }
    fenster_.Mausbewegung.verbinden([this] { Mousemove_Effekt(0); });
}

void Mausmarkierung::Mousemove_Effekt(int Nummer) {
    neueste_ = Nummer;
    if (läuft_) return;
    const Während läuft(läuft_);
    int behandelt;
    do {
        behandelt = neueste_;
        wechseln(behandelt);
    } while (behandelt != neueste_);
}

// Each of the two calls looks after the remote control with the number that it handles. So it never opens by itself while
// nothing is marked, and a mouse that leaves it for a place without a number leaves it open.
void Mausmarkierung::wechseln(int Nummer) {
    if (Nummer == letzte_) return;
    if (letzte_ > 0) entmarkieren(letzte_);
    if (Nummer >= 1 && einstellungen_.Objekt_Markierung_aktiv) markieren(Nummer);
}

void Mausmarkierung::entmarkieren(int Nummer) {
    if (Element* element = Element_mit(Nummer)) element->hintergrund(vorher_);
    letzte_ = 0;
    Fernsteuerung_prüfen(Nummer);
}

void Mausmarkierung::markieren(int Nummer) {
    if (Element* element = Element_mit(Nummer)) {
        vorher_ = element->hintergrund();
        element->hintergrund(element->art() == Elementart::Liste ? einstellungen_.Markierte_Listen_Farbe
                                                                 : einstellungen_.Markierte_Farbe);
    }
    letzte_ = Nummer;
    Fernsteuerung_prüfen(Nummer);
}

void Mausmarkierung::Fernsteuerung_prüfen(int Nummer) {
    const bool gehört_dazu = Nummer >= Fernsteuerung::erste_Mausnummer && Nummer <= Fernsteuerung::letzte_Mausnummer;
    const bool animiert = einstellungen_.WinAmp_Fernsteuerung_animiert;
    if (gehört_dazu && !fernsteuerung_.sichtbar()) fernsteuerung_.Fernsteuerung_öffnen(animiert);
    if (!gehört_dazu && fernsteuerung_.sichtbar()) fernsteuerung_.Fernsteuerung_schließen(animiert);
}

Element* Mausmarkierung::Element_mit(int Nummer) const {
    for (Element* element : fenster_.elemente())
        if (element->Mausnummer == Nummer) return element;
    return nullptr;
}

}  // namespace tonkartei
