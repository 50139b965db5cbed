#include "bediener/schau.hpp"

#include "bediener/json.hpp"
#include "grundlagen/zahl.hpp"
#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/fenster.hpp"
#include "oberflaeche/listen.hpp"

namespace tonkartei {
namespace {

// The toolkit's own colours, as numbers: black on silver, fields white.
constexpr Farbe Grundfarbe = RGB(192, 192, 192);
constexpr Farbe Feldfarbe = RGB(255, 255, 255);

const char* Artname(Elementart art) {
    switch (art) {
        case Elementart::Knopf: return "knopf";
        case Elementart::Kasten: return "kasten";
        case Elementart::Option: return "option";
        case Elementart::Eingabe: return "text";
        case Elementart::Schrift: return "schrift";
        case Elementart::Liste: return "liste";
        case Elementart::Auswahl: return "auswahl";
        case Elementart::Regler: return "regler";
        case Elementart::Reiter: return "reiter";
        case Elementart::Rahmen: return "rahmen";
        case Elementart::Menü: return "menü";
        case Elementart::Fläche: return "fläche";
        case Elementart::Balken: return "balken";
        case Elementart::Dreistufer: return "dreistufer";
        case Elementart::Symbol: return "symbol";
    }
    return "";
}

Farbe Hintergrund(const Element& element) {
    if (element.hintergrund() != Farbe_Standard) return element.hintergrund();
    const Elementart art = element.art();
    const bool feld = art == Elementart::Eingabe || art == Elementart::Liste || art == Elementart::Auswahl;
    return feld ? Feldfarbe : Grundfarbe;
}

bool aktiv_im_Rahmen(const Element& element) {
    for (const Element* e = &element; e != nullptr; e = e->rahmen())
        if (!e->aktiv()) return false;
    return true;
}

void Zeilen_beschreiben(Json::Objekt& ziel, const Zeilenelement& liste) {
    ziel.mit("text", liste.gewählter_Text()).roh("zeilen", Json::Textliste(liste.zeilen())).mit("gewählt", liste.gewählt());
    if (liste.art() == Elementart::Liste) ziel.mit("erste", static_cast<const Listenfeld&>(liste).erste());
}

Text Linienliste(const std::vector<Linie>& linien) {
    std::vector<Text> teile;
    for (const Linie& l : linien) {
        std::vector<Text> zahlen;
        for (const int zahl : {l.x1, l.y1, l.x2, l.y2, static_cast<int>(l.farbe)}) zahlen.push_back(Zahltext(zahl));
        teile.push_back(Json::Liste(zahlen));
    }
    return Json::Liste(teile);
}

// The kind's own keys.
void Wert_beschreiben(Json::Objekt& ziel, const Element& element) {
    const auto beschriftet = [&]() -> Json::Objekt& {
        return ziel.mit("text", einheitliche_Umbrüche(element.beschriftung()));
    };
    switch (element.art()) {
        case Elementart::Kasten: beschriftet().mit("wert", static_cast<const Kasten&>(element).wert()); break;
        case Elementart::Option: beschriftet().mit("wert", static_cast<const Optionsfeld&>(element).wert()); break;
        case Elementart::Eingabe:
            ziel.mit("text", einheitliche_Umbrüche(static_cast<const Textfeld&>(element).text()));
            break;
        case Elementart::Liste:
        case Elementart::Auswahl: Zeilen_beschreiben(ziel, static_cast<const Zeilenelement&>(element)); break;
        case Elementart::Reiter: {
            const auto& reiter = static_cast<const Reiter&>(element);
            const auto tab = static_cast<std::size_t>(reiter.wert());
            ziel.mit("text", tab < reiter.tabs().size() ? reiter.tabs()[tab] : Text{});
            ziel.mit("wert", reiter.wert()).roh("zeilen", Json::Textliste(reiter.tabs()));
            break;
        }
        case Elementart::Regler: {
            const auto& regler = static_cast<const Regler&>(element);
            ziel.mit("wert", regler.wert()).mit("min", regler.min()).mit("max", regler.max());
            break;
        }
        case Elementart::Dreistufer:
            ziel.mit("wert", static_cast<const Dreistufer&>(element).wert());
            ziel.mit("min", Dreistufer::oben_Stufe).mit("max", Dreistufer::unten_Stufe);
            break;
        case Elementart::Balken: ziel.mit("wert", static_cast<const Balken&>(element).wert()); break;
        case Elementart::Menü: beschriftet().mit("haken", static_cast<const Menüpunkt&>(element).haken()); break;
        case Elementart::Knopf: beschriftet().mit("bild", static_cast<const Knopf&>(element).Bild); break;
        case Elementart::Fläche: {
            const auto& fläche = static_cast<const Bildfläche&>(element);
            ziel.mit("bild", fläche.Bild).roh("linien", Linienliste(fläche.linien()));
            break;
        }
        default: beschriftet(); break;
    }
}

}  // namespace

Text einheitliche_Umbrüche(const Text& text) {
    Text ergebnis;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r') {
            ergebnis += '\n';
            if (i + 1 < text.size() && text[i + 1] == '\n') ++i;
        } else {
            ergebnis += text[i];
        }
    }
    return ergebnis;
}

Text Menübaum(const std::vector<std::unique_ptr<Menüpunkt>>& einträge) {
    std::vector<Text> teile;
    for (const auto& eintrag : einträge) {
        if (!eintrag->sichtbar()) continue;
        teile.push_back(Json::Objekt()
                            .mit("name", eintrag->voller_Name())
                            .mit("text", eintrag->beschriftung())
                            .mit("haken", eintrag->haken())
                            .mit("aktiv", eintrag->aktiv())
                            .roh("einträge", Menübaum(eintrag->einträge()))
                            .text());
    }
    return Json::Liste(teile);
}

Text Element_beschreiben(const Element& element, const Text& name) {
    Json::Objekt ziel;
    ziel.mit("element", name).mit("art", Artname(element.art()));
    Wert_beschreiben(ziel, element);
    ziel.mit("sichtbar", element.zu_sehen())
        .mit("aktiv", aktiv_im_Rahmen(element))
        .mit("farbe", element.farbe() == Farbe_Standard ? Farbe_Schwarz : element.farbe())
        .mit("hintergrund", Hintergrund(element))
        .mit("tooltip", einheitliche_Umbrüche(element.tooltip()))
        .mit("links", element.links())
        .mit("oben", element.oben())
        .mit("breite", element.breite())
        .mit("höhe", element.höhe())
        .mit("schrift", element.schrift());
    return ziel.text();
}

Text Fenster_beschreiben(const Ansicht& ansicht, const Fenster& fenster) {
    return Json::Objekt()
        .mit("name", fenster.Name())
        .mit("titel", fenster.titel())
        .mit("sichtbar", fenster.sichtbar())
        .mit("aktiv", fenster.aktiv() && ansicht.erreichbar(fenster))
        .mit("zustand", fenster.zustand() == Fensterzustand::minimiert ? "minimiert" : "normal")
        .mit("immer_oben", fenster.immer_oben())
        .mit("links", fenster.lage().links)
        .mit("oben", fenster.lage().oben)
        .mit("breite", fenster.lage().breite)
        .mit("höhe", fenster.lage().höhe)
        .text();
}

}  // namespace tonkartei
