#include "oberflaeche/vorlesename.hpp"

#include <algorithm>
#include <cctype>

#include "oberflaeche/elemente.hpp"
#include "oberflaeche/fenster.hpp"

namespace tonkartei {
namespace {

// Arrows and dots alone say nothing to the ear.
bool sagt_etwas(const Text& text) {
    return std::any_of(text.begin(), text.end(), [](unsigned char z) { return std::isalnum(z) != 0 || z > 127; });
}

bool ist_Feld(const Element& e) {
    switch (e.art()) {
        case Elementart::Eingabe:
        case Elementart::Auswahl:
        case Elementart::Liste:
        case Elementart::Regler:
        case Elementart::Dreistufer:
        case Elementart::Balken:
        case Elementart::Reiter: return !e.unsichtbarer_Helfer;
        default: return false;
    }
}

// Without the mark of the access key, and without the colon that leads to the field.
Text Beschriftung(const Element& e) {
    const bool Daten = e.art() == Elementart::Schrift && static_cast<const Schriftfeld&>(e).wie_Daten;
    Text text;
    for (std::size_t i = 0; i < e.beschriftung().size(); ++i) {
        const bool doppelt = e.beschriftung().compare(i, 2, "&&") == 0;
        if (e.beschriftung()[i] == '&' && !e.Beschriftung_wörtlich && !(Daten && !doppelt)) {
            if (!doppelt) continue;
            ++i;
        }
        text += e.beschriftung()[i];
    }
    if (!sagt_etwas(text)) return {};
    if (!Daten && text.back() == ':') text.pop_back();
    if (e.art() != Elementart::Knopf) return text;
    // An arrow beside the words is for the eye.
    const char* pfeil = " <>-";
    const std::size_t anfang = text.find_first_not_of(pfeil);
    return text.substr(anfang, text.find_last_not_of(pfeil) + 1 - anfang);
}

// Up to what it explains besides.
Text Hinweis(const Element& e) {
    Text text = e.tooltip().substr(0, e.tooltip().find_first_of(";\r\n"));
    if (!text.empty() && text.back() == '.') text.pop_back();
    return text;
}

bool ist_Überschrift(const Element& e) {
    if (e.art() != Elementart::Schrift || e.Klick.hat_Hörer()) return false;
    const auto& schrift = static_cast<const Schriftfeld&>(e);
    const Text& text = schrift.beschriftung();
    const bool führt_hin = text.find('&') != Text::npos || (!text.empty() && text.back() == ':');
    return führt_hin && !schrift.wie_Daten && !schrift.eingerahmt && !schrift.Ziffern;
}

// The label that is called after the control, else the one made just before it.
Text Überschrift(const Element& e) {
    const auto& alle = e.fenster().elemente();
    for (const Element* eines : alle)
        if (eines->art() == Elementart::Schrift && eines->Index() == e.Index() && eines->Name() == e.Name() + "_Text")
            return Beschriftung(*eines);
    const auto selbst = std::find(alle.begin(), alle.end(), &e);
    if (selbst == alle.begin() || selbst == alle.end()) return {};
    const Element& davor = **(selbst - 1);
    return ist_Überschrift(davor) && davor.rahmen() == e.rahmen() ? Beschriftung(davor) : Text{};
}

bool ist_allein(const Element& e) {
    const auto& alle = e.fenster().elemente();
    return std::none_of(alle.begin(), alle.end(), [&e](const Element* anderes) {
        return anderes != &e && anderes->rahmen() == e.rahmen() && ist_Feld(*anderes);
    });
}

Text Fenstertitel(const Fenster& fenster) {
    return fenster.Platz() == nullptr ? fenster.titel() : Beschriftung(*fenster.Platz());
}

Text Feldname(const Element& e) {
    if (Text name = Überschrift(e); !name.empty()) return name;
    if (Text name = Hinweis(e); !name.empty()) return name;
    for (const Element* rahmen = e.rahmen(); rahmen != nullptr && ist_allein(e); rahmen = rahmen->rahmen())
        if (Text name = Beschriftung(*rahmen); !name.empty()) return name;
    const bool für_alles = e.art() == Elementart::Liste || e.art() == Elementart::Reiter || ist_allein(e);
    return für_alles ? Fenstertitel(e.fenster()) : Text{};
}

// A value that can be clicked goes by what it is the value of.
Text Schriftname(const Element& e) {
    const Text text = Beschriftung(e), wovon = e.Vorlesename.empty() ? Überschrift(e) : e.Vorlesename;
    if (wovon.empty()) return text.empty() ? Hinweis(e) : text;
    return text.empty() ? wovon : wovon + ": " + text;
}

}  // namespace

Text Vorlesename(const Element& e) {
    if (e.art() == Elementart::Schrift) return Schriftname(e);
    if (!e.Vorlesename.empty()) return e.Vorlesename;
    if (Text text = Beschriftung(e); !text.empty()) return text;
    switch (e.art()) {
        case Elementart::Rahmen: return {};
        case Elementart::Fläche:
        case Elementart::Knopf: return Hinweis(e);
        default: return Feldname(e);
    }
}

}  // namespace tonkartei
