#include "bediener/fenstermaler_ohne.hpp"

#include <algorithm>
#include <vector>

#include "oberflaeche/elemente.hpp"
#include "oberflaeche/listen.hpp"

namespace tonkartei {
namespace {

constexpr int Umbruchzeichen = 40;

std::vector<Text> Zeilen(const Text& text) {
    std::vector<Text> ergebnis(1);
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\r' && text[i] != '\n') {
            ergebnis.back() += text[i];
            continue;
        }
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') ++i;
        ergebnis.emplace_back();
    }
    return ergebnis;
}

// What is left to see of a caption: the mark of an access key takes no room.
Text ohne_Marke(const Text& beschriftung) {
    Text ergebnis;
    for (std::size_t i = 0; i < beschriftung.size(); ++i) {
        if (beschriftung[i] == '&' && i + 1 < beschriftung.size()) ++i;
        ergebnis += beschriftung[i];
    }
    return ergebnis;
}

}  // namespace

int Fenstermaler_ohne::Textbreite(const Text& text, int punkte) const {
    std::size_t zeichen = 0;
    for (const Text& zeile : Zeilen(text)) zeichen = std::max(zeichen, Zeichenzahl(zeile));
    return static_cast<int>(zeichen) * 12 * punkte;
}

int Fenstermaler_ohne::Texthöhe(int punkte) const { return 20 * punkte; }
int Fenstermaler_ohne::Zeilenhöhe(int punkte) const { return 20 * punkte; }
Größe Fenstermaler_ohne::Bildschirm() const { return {1280 * Twips_je_Pixel, 1024 * Twips_je_Pixel}; }

Bereich Fenstermaler_ohne::Rahmenrand(const Element& rahmen) const {
    if (rahmen.beschriftung().empty()) return {};
    const int titel = Texthöhe(rahmen.schrift());
    return {120, titel + 60, 240, titel + 180};
}

Größe Fenstermaler_ohne::Wunschgröße(const Element& element) const {
    const int punkte = element.schrift();
    const auto zeichen = [&](int anzahl) { return anzahl * 12 * punkte; };
    const int text = Textbreite(ohne_Marke(element.beschriftung()), punkte);
    switch (element.art()) {
        case Elementart::Knopf: {
            const auto& knopf = static_cast<const Knopf&>(element);
            if (!knopf.Bild.empty()) return {30 * punkte, 30 * punkte};
            return knopf.klein ? Größe{text + zeichen(1), 25 * punkte} : Größe{text + zeichen(2), 30 * punkte};
        }
        case Elementart::Kasten:
        case Elementart::Option: return {text + zeichen(3), 25 * punkte};
        case Elementart::Eingabe: return {zeichen(20), 30 * punkte};
        case Elementart::Schrift: {
            const auto& schrift = static_cast<const Schriftfeld&>(element);
            const int rand = schrift.eingerahmt ? 60 : 0;
            int breite = text, höhe = 0;
            if (schrift.umbrechen) breite = std::min(breite, zeichen(Umbruchzeichen));
            for (const Text& zeile : Zeilen(schrift.beschriftung())) {
                const int länge = Textbreite(zeile, punkte);
                const int zeilen = schrift.umbrechen ? std::max(1, (länge + breite - 1) / std::max(1, breite)) : 1;
                höhe += zeilen * Zeilenhöhe(punkte);
            }
            return {breite + 2 * rand, höhe + 2 * rand};
        }
        case Elementart::Liste: return {zeichen(30), 8 * Zeilenhöhe(punkte) + 60};
        case Elementart::Auswahl: return {zeichen(23), 30 * punkte};
        case Elementart::Regler: {
            const bool senkrecht = static_cast<const Regler&>(element).senkrecht;
            return senkrecht ? Größe{25 * punkte, zeichen(12)} : Größe{zeichen(12), 25 * punkte};
        }
        case Elementart::Reiter: {
            int breite = 0;
            for (const Text& tab : static_cast<const Reiter&>(element).tabs())
                breite += Textbreite(ohne_Marke(tab), punkte) + zeichen(2);
            return {breite, 30 * punkte};
        }
        case Elementart::Rahmen: return {text + zeichen(2), 25 * punkte};
        case Elementart::Fläche: return static_cast<const Bildfläche&>(element).Wunsch;
        case Elementart::Balken: return {zeichen(20), 25 * punkte};
        case Elementart::Dreistufer: return {zeichen(6), 30 * punkte};
        case Elementart::Menü:
        case Elementart::Symbol: break;
    }
    return {};
}

}  // namespace tonkartei
