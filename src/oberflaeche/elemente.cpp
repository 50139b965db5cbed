#include "oberflaeche/elemente.hpp"

#include "oberflaeche/fenster.hpp"

namespace tonkartei {

void Kasten::wert(bool neu) {
    if (wert_ == neu) return;
    wert_ = neu;
    melden(Änderung_Wert);
    Klick();
}

void Kasten::Startwerte_merken() {
    Element::Startwerte_merken();
    start_ = wert_;
}

void Kasten::Startwerte_setzen() {
    Element::Startwerte_setzen();
    wert_ = start_;
}

void Optionsfeld::wählen() {
    for (Element* anderes : fenster().elemente()) {
        if (anderes == this || anderes->art() != Elementart::Option) continue;
        auto& feld = static_cast<Optionsfeld&>(*anderes);
        if (feld.Gruppe == Gruppe && feld.wert_) {
            feld.wert_ = false;
            feld.melden(Änderung_Wert);
        }
    }
    wert_ = true;
    melden(Änderung_Wert);
    Klick();
}

void Optionsfeld::Startwerte_merken() {
    Element::Startwerte_merken();
    start_ = wert_;
}

void Optionsfeld::Startwerte_setzen() {
    Element::Startwerte_setzen();
    wert_ = start_;
}

void Textfeld::text(Text neu) {
    if (text_ == neu) return;
    text_ = std::move(neu);
    melden(Änderung_Wert);
    Geändert();
}

void Textfeld::Startwerte_merken() {
    Element::Startwerte_merken();
    start_ = text_;
}

void Textfeld::Startwerte_setzen() {
    Element::Startwerte_setzen();
    text_ = start_;
}

void Regler::bereich(int min, int max) {
    if (min_ != min || max_ != max) {
        min_ = min;
        max_ = std::max(min, max);
        melden(Änderung_Wert);
    }
    wert(wert_);
}

void Regler::wert(int neu) {
    neu = std::clamp(neu, min_, max_);
    if (wert_ == neu) return;
    wert_ = neu;
    melden(Änderung_Wert);
    Geändert();
}

void Regler::von_Hand_schieben(int neu) {
    wert(neu);
    Gescrollt();
}

void Regler::Startwerte_merken() {
    Element::Startwerte_merken();
    start_min_ = min_;
    start_max_ = max_;
    start_wert_ = wert_;
}

void Regler::Startwerte_setzen() {
    Element::Startwerte_setzen();
    min_ = start_min_;
    max_ = start_max_;
    wert_ = start_wert_;
}

void Dreistufer::wert(int neu) {
    neu = std::clamp(neu, oben_Stufe, unten_Stufe);
    if (wert_ == neu) return;
    wert_ = neu;
    melden(Änderung_Wert);
    Geändert();
}

void Dreistufer::Startwerte_setzen() {
    Element::Startwerte_setzen();
    wert_ = Ruhe;
}

Rahmen::~Rahmen() {
    if (Inhalt != nullptr) Inhalt->platz_ = nullptr;
}

void Balken::wert(int neu) {
    if (wert_ == neu) return;
    wert_ = neu;
    melden(Änderung_Wert);
}

void Balken::Startwerte_setzen() {
    Element::Startwerte_setzen();
    wert_ = 0;
}

void Bildfläche::linien(std::vector<Linie> neue) {
    if (linien_ == neue) return;
    linien_ = std::move(neue);
    melden(Änderung_Wert);
}

void Bildfläche::Startwerte_setzen() {
    Element::Startwerte_setzen();
    linien_.clear();
}

}  // namespace tonkartei
