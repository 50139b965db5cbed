#include "oberflaeche/menue.hpp"

#include "grundlagen/fehler.hpp"

namespace tonkartei {
namespace {

Menüpunkt* suchen(const std::vector<std::unique_ptr<Menüpunkt>>& einträge, const Text& name, int index) {
    for (const auto& eintrag : einträge) {
        if (eintrag->Name() == name && eintrag->Index() == index) return eintrag.get();
        if (Menüpunkt* fund = suchen(eintrag->einträge(), name, index)) return fund;
    }
    return nullptr;
}

}  // namespace

Menüpunkt::Menüpunkt(Fenster& f, const Menüzeile& zeile)
    : Element(f, Elementart::Menü, zeile.Name, zeile.Beschriftung, zeile.Index) {
    if (zeile.Handler)
        Klick.verbinden(zeile.Handler);
    else if (zeile.Einträge.empty() && !ist_Strich())
        aktiv(false);
    for (const Menüzeile& unter : zeile.Einträge) einträge_.push_back(std::make_unique<Menüpunkt>(f, unter));
}

void Menüpunkt::haken(bool wert) {
    if (haken_ == wert) return;
    haken_ = wert;
    melden(Änderung_Wert);
}

Menüpunkt& Menüpunkt::anfügen(const Menüzeile& zeile) {
    einträge_.push_back(std::make_unique<Menüpunkt>(fenster(), zeile));
    melden(Änderung_Zeilen);
    return *einträge_.back();
}

void Menüpunkt::kürzen(std::size_t anzahl) {
    while (einträge_.size() > anzahl) einträge_.pop_back();
    melden(Änderung_Zeilen);
}

Menü::Menü(Fenster& f, const std::vector<Menüzeile>& tabelle) {
    for (const Menüzeile& zeile : tabelle) einträge_.push_back(std::make_unique<Menüpunkt>(f, zeile));
}

Menüpunkt& Menü::operator()(const Text& name, int index) const {
    Menüpunkt* fund = suchen(einträge_, name, index);
    if (fund == nullptr) throw Laufzeitfehler(Fehler_Index);
    return *fund;
}

void Menü::nur_Haken(const Text& name, int n, int von, int bis) const {
    for (int i = von; i <= bis; ++i) (*this)(name, i).haken(i == n);
}

}  // namespace tonkartei
