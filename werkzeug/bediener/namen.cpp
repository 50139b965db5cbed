#include "bediener/namen.hpp"

#include <algorithm>
#include <charconv>

#include "bediener/befehlszeile.hpp"
#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/fenster.hpp"

namespace tonkartei {
namespace {

const char* const Kontextmenüs = "Kontextmenüs";

Fenster* Fenster_finden(const Ansicht& ansicht, const Text& name) {
    for (const auto* liste : {&ansicht.fenster(), &ansicht.alle_Fenster()})
        for (Fenster* fenster : *liste)
            if (fenster->Name() == name) return fenster;
    return nullptr;
}

// "Name" or "Name(3)".
Element* Element_finden(const Fenster& fenster, const Text& name) {
    for (Element* element : fenster.elemente())
        if (element->voller_Name() == name) return element;
    if (name.empty() || name.back() == ')') return nullptr;
    return fenster.element(name, -1);
}

// A menu entry can be reached when all the menus above it can be opened.
bool Weg_offen(const std::vector<std::unique_ptr<Menüpunkt>>& einträge, const Element& ziel) {
    return std::any_of(einträge.begin(), einträge.end(), [&](const auto& eintrag) {
        if (!eintrag->sichtbar() || !eintrag->aktiv()) return false;
        return eintrag.get() == &ziel || Weg_offen(eintrag->einträge(), ziel);
    });
}

// An entry of a pop-up menu needs no menu above it: it is worked without the menu being up.
void Menüpunkt_prüfen(const Element& element) {
    const Menü* menü = element.fenster().menü();
    const bool allein = menü == nullptr || element.fenster().Name() == Kontextmenüs;
    if (allein ? !element.aktiv() : !Weg_offen(menü->einträge(), element))
        throw Befehlsfehler("der Menüeintrag ist gesperrt oder verborgen: " + element.voller_Name());
}

}  // namespace

Fenster& Fenster_suchen(const Ansicht& ansicht, const Text& name) {
    Fenster* fenster = Fenster_finden(ansicht, name);
    if (fenster == nullptr) throw Befehlsfehler("kein solches Fenster: " + name);
    return *fenster;
}

bool ist_Fenstername(const Ansicht& ansicht, const Text& name) { return Fenster_finden(ansicht, name) != nullptr; }

Element& Element_suchen(const Ansicht& ansicht, const Text& name) {
    const std::size_t punkt = name.find('.');
    if (punkt == Text::npos) {
        for (const Fenster* fenster : ansicht.fenster())
            if (Element* element = Element_finden(*fenster, name)) return *element;
        throw Befehlsfehler("kein solches Element: " + name);
    }
    const Fenster& fenster = Fenster_suchen(ansicht, name.substr(0, punkt));
    Element* element = Element_finden(fenster, name.substr(punkt + 1));
    if (element == nullptr) throw Befehlsfehler("kein solches Element: " + name);
    return *element;
}

void bedienbar_prüfen(const Ansicht& ansicht, const Fenster& fenster) {
    if (!fenster.sichtbar()) throw Befehlsfehler("das Fenster ist nicht zu sehen: " + fenster.Name());
    if (!fenster.aktiv()) throw Befehlsfehler("das Fenster ist gesperrt: " + fenster.Name());
    if (!ansicht.erreichbar(fenster)) throw Befehlsfehler("ein anderes Fenster sperrt dieses: " + fenster.Name());
}

void sichtbar_prüfen(const Ansicht& ansicht, Element& element) {
    const Fenster& fenster = element.fenster();
    if (element.art() == Elementart::Symbol) {
        if (!fenster.geladen() || !element.sichtbar())
            throw Befehlsfehler("das Symbol ist nicht zu sehen: " + element.voller_Name());
        return;
    }
    if (element.art() == Elementart::Menü && fenster.Name() == Kontextmenüs) return;
    bedienbar_prüfen(ansicht, fenster);
    if (fenster.zustand() == Fensterzustand::minimiert) throw Befehlsfehler("das Fenster ist minimiert: " + fenster.Name());
    if (element.art() != Elementart::Menü && !element.zu_sehen())
        throw Befehlsfehler("das Element ist nicht zu sehen: " + element.voller_Name());
}

void bedienbar_prüfen(const Ansicht& ansicht, Element& element) {
    sichtbar_prüfen(ansicht, element);
    if (element.art() == Elementart::Menü) return Menüpunkt_prüfen(element);
    if (element.art() != Elementart::Symbol && !element.bedienbar())
        throw Befehlsfehler("das Element ist gesperrt: " + element.voller_Name());
}

}  // namespace tonkartei
