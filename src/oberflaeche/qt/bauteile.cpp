#include "oberflaeche/qt/bauteile.hpp"

namespace tonkartei {

std::unique_ptr<Bauteil> Bauteil::machen(Umfeld& umfeld, Fensterwidget& fenster, Element& element) {
    if (element.unsichtbarer_Helfer) return nullptr;
    switch (element.art()) {
        case Elementart::Knopf: return Knopf_machen(umfeld, fenster, element);
        case Elementart::Kasten: return Kasten_machen(umfeld, fenster, element);
        case Elementart::Option: return Option_machen(umfeld, fenster, element);
        case Elementart::Eingabe: return Eingabe_machen(umfeld, fenster, element);
        case Elementart::Schrift: return Schrift_machen(umfeld, fenster, element);
        case Elementart::Liste: return Liste_machen(umfeld, fenster, element);
        case Elementart::Auswahl: return Auswahl_machen(umfeld, fenster, element);
        case Elementart::Regler: return Regler_machen(umfeld, fenster, element);
        case Elementart::Reiter: return Reiter_machen(umfeld, fenster, element);
        case Elementart::Rahmen: return Rahmen_machen(umfeld, fenster, element);
        case Elementart::Fläche: return Fläche_machen(umfeld, fenster, element);
        case Elementart::Balken: return Balken_machen(umfeld, fenster, element);
        case Elementart::Symbol: return Symbol_machen(umfeld, fenster, element);
        case Elementart::Dreistufer: return Dreistufer_machen(umfeld, fenster, element);
        case Elementart::Menü: break;  // belongs to the menu bar
    }
    return nullptr;
}

}  // namespace tonkartei
