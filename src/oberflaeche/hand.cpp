#include "oberflaeche/hand.hpp"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "grundlagen/codepage.hpp"
#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/elemente.hpp"
#include "oberflaeche/fenster.hpp"
#include "oberflaeche/listen.hpp"

namespace tonkartei::Hand {
namespace {

void fokussieren(Element& element) {
    if (element.nimmt_Fokus()) element.fenster().ansicht().fokus(element);
}

// The character behind a single "&", in upper case; empty without one.
Text Zugriffszeichen(const Text& beschriftung) {
    for (std::size_t i = 0; i + 1 < beschriftung.size(); ++i) {
        if (beschriftung[i] != '&') continue;
        if (beschriftung[i + 1] == '&') {
            ++i;
            continue;
        }
        return groß(links(std::string_view(beschriftung).substr(i + 1), 1));
    }
    return {};
}

bool wählt_erst_auf_Return(const Element& element) {
    return element.art() == Elementart::Liste && static_cast<const Listenfeld&>(element).wählt_erst_auf_Return;
}

// The next option of its group that can be chosen, round about.
void Option_verschieben(Optionsfeld& option, int schritt) {
    std::vector<Optionsfeld*> gruppe;
    for (Element* e : option.fenster().elemente())
        if (e->art() == Elementart::Option && e->bedienbar())
            if (auto* eine = static_cast<Optionsfeld*>(e); eine->Gruppe == option.Gruppe) gruppe.push_back(eine);
    const auto hier = std::find(gruppe.begin(), gruppe.end(), &option);
    if (hier == gruppe.end() || gruppe.size() < 2) return;
    const auto anzahl = static_cast<std::ptrdiff_t>(gruppe.size());
    klicken(*gruppe[static_cast<std::size_t>((hier - gruppe.begin() + schritt + anzahl) % anzahl)]);
}

bool Wahl_verschieben(Element& element, int schritt) {
    if (element.art() == Elementart::Liste || element.art() == Elementart::Auswahl) {
        auto& liste = static_cast<Zeilenelement&>(element);
        const int neu = std::clamp(liste.gewählt() + schritt, 0, std::max(0, liste.Anzahl() - 1));
        if (liste.Anzahl() > 0 && neu != liste.gewählt())
            wählt_erst_auf_Return(element) ? liste.markieren(neu) : liste.wähle(neu);
        return true;
    }
    if (element.art() == Elementart::Option) {
        Option_verschieben(static_cast<Optionsfeld&>(element), schritt);
        return true;
    }
    if (element.art() == Elementart::Regler) {
        auto& regler = static_cast<Regler&>(element);
        schieben(regler, regler.wert() - (regler.umgekehrt ? -schritt : schritt));
        return true;
    }
    if (element.art() == Elementart::Dreistufer) {
        schieben(element, Dreistufer::Ruhe + schritt);
        return true;
    }
    return false;
}

void Knopf_drücken(Element* knopf) {
    if (knopf != nullptr && knopf->bedienbar()) klicken(*knopf);
}

// The tab whose caption has the access key.
void Tab_öffnen(Fenster& fenster, const Text& zeichen) {
    for (Element* e : fenster.elemente()) {
        if (e->art() != Elementart::Reiter || !e->bedienbar()) continue;
        auto& reiter = static_cast<Reiter&>(*e);
        for (std::size_t tab = 0; tab < reiter.tabs().size(); ++tab) {
            if (zeichen.empty() || Zugriffszeichen(reiter.tabs()[tab]) != groß(zeichen)) continue;
            wählen(reiter, static_cast<int>(tab));
            return;
        }
    }
}

void tippen(Element& element, const Taste& taste) {
    switch (element.art()) {
        case Elementart::Eingabe: {
            auto& feld = static_cast<Textfeld&>(element);
            if (!feld.nur_lesen) feld.text(feld.text() + taste.zeichen);
            break;
        }
        case Elementart::Knopf:
        case Elementart::Kasten:
        case Elementart::Option:
            if (taste.zeichen == " ") klicken(element);
            break;
        default: break;
    }
}

}  // namespace

void klicken(Element& element, int x, int y) {
    fokussieren(element);
    drücken(element, x, y);
    loslassen(element, x, y);
    element.von_Hand_klicken();
}

void doppelklicken(Element& element, int, int) {
    fokussieren(element);
    element.Doppelklick();
}

void drücken(Element& element, int x, int y) {
    fokussieren(element);
    element.Gedrückt(x, y);
}

void loslassen(Element& element, int x, int y) { element.Losgelassen(x, y); }

void rechtsklicken(Element& element, int zeile) { element.Rechtsklick(zeile); }

void wählen(Element& element, int zeile) {
    fokussieren(element);
    if (element.art() == Elementart::Reiter)
        static_cast<Reiter&>(element).wert(zeile);
    else if (element.art() == Elementart::Liste || element.art() == Elementart::Auswahl)
        static_cast<Zeilenelement&>(element).wähle(zeile);
}

void schreiben(Element& element, const Text& text) {
    fokussieren(element);
    if (element.art() == Elementart::Eingabe) static_cast<Textfeld&>(element).text(text);
}

void schieben(Element& element, int wert) {
    if (element.art() == Elementart::Regler) static_cast<Regler&>(element).von_Hand_schieben(wert);
    if (element.art() == Elementart::Dreistufer) static_cast<Dreistufer&>(element).wert(wert);
}

void Taste_drücken(Element& element, Taste taste) {
    element.Tastendruck(taste);
    if (taste.erledigt) return;
    if (wählt_erst_auf_Return(element) &&
        (taste.art == Taste::Art::Return || (taste.art == Taste::Art::Zeichen && taste.zeichen == " "))) {
        auto& liste = static_cast<Listenfeld&>(element);
        if (liste.gewählt() >= 0) liste.wähle(liste.gewählt());
        return;
    }
    Fenster& fenster = element.fenster();
    switch (taste.art) {
        case Taste::Art::Return: Knopf_drücken(element.art() == Elementart::Knopf ? &element : fenster.Vorgabeknopf); break;
        case Taste::Art::Escape: Knopf_drücken(fenster.Abbruchknopf); break;
        case Taste::Art::Tab:
            if (Element* nächstes = nächster_Fokus(element)) fokussieren(*nächstes);
            break;
        case Taste::Art::Auf: Wahl_verschieben(element, -1); break;
        case Taste::Art::Ab: Wahl_verschieben(element, 1); break;
        case Taste::Art::Alt:
            if (Element* ziel = Zugriffstaste(fenster, taste.zeichen)) {
                const bool auslösbar = ziel->art() == Elementart::Knopf || ziel->art() == Elementart::Kasten ||
                                       ziel->art() == Elementart::Option;
                if (auslösbar)
                    klicken(*ziel);
                else
                    fokussieren(*ziel);
            } else {
                Tab_öffnen(fenster, taste.zeichen);
            }
            break;
        case Taste::Art::Löschen:
            if (element.art() == Elementart::Eingabe) {
                auto& feld = static_cast<Textfeld&>(element);
                const std::size_t zeichen = Zeichenzahl(feld.text());
                if (zeichen > 0 && !feld.nur_lesen) feld.text(links(feld.text(), zeichen - 1));
            }
            break;
        case Taste::Art::Zeichen: tippen(element, taste); break;
        case Taste::Art::F2: break;
    }
}

void Maus_bewegen(Element& element, int x, int y) {
    if (element.bedienbar())
        element.Mausbewegung(x, y);
    else
        element.fenster().Mausbewegung();
}

void ablegen(Element& quelle, Element& ziel) {
    quelle.Ziehen_beginnt();
    if (!quelle.Ziehmarke.empty()) ziel.Abgelegt(quelle);
}

void Dateien_ablegen(Element& ziel, const std::vector<Text>& pfade) { ziel.Dateien_abgelegt(pfade); }

Element* Zugriffstaste(Fenster& fenster, const Text& zeichen) {
    const Text gesucht = groß(zeichen);
    for (Element* e : fenster.elemente()) {
        if (e->art() == Elementart::Menü || !e->bedienbar()) continue;
        if (e->Beschriftung_wörtlich) continue;
        if (e->art() == Elementart::Schrift && static_cast<Schriftfeld*>(e)->wie_Daten) continue;
        if (Zugriffszeichen(e->beschriftung()) != gesucht || gesucht.empty()) continue;
        if (e->art() == Elementart::Schrift || e->art() == Elementart::Rahmen) return nächster_Fokus(*e);
        return e;
    }
    return nullptr;
}

Element* nächster_Fokus(Element& element) {
    const auto& alle = element.fenster().elemente();
    const auto hier = std::find(alle.begin(), alle.end(), &element);
    for (auto i = hier == alle.end() ? hier : hier + 1; i != alle.end(); ++i)
        if ((*i)->nimmt_Fokus()) return *i;
    for (auto i = alle.begin(); i != hier; ++i)
        if ((*i)->nimmt_Fokus()) return *i;
    return nullptr;
}

}  // namespace tonkartei::Hand
