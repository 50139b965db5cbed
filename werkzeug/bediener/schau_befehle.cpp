#include <utility>

#include "bediener/ansicht_bediener.hpp"
#include "bediener/befehle.hpp"
#include "bediener/json.hpp"
#include "bediener/maschine.hpp"
#include "bediener/namen.hpp"
#include "bediener/schau.hpp"
#include "oberflaeche/fenster.hpp"
#include "oberflaeche/menue.hpp"

namespace tonkartei {
namespace {

using Json::Objekt;

void art_schreiben(Objekt& ziel, const Mitschrift_Nachricht& n) {
    ziel.mit("art", "nachricht").mit("fenster", n.Fenster).mit("msg", n.Msg).mit("w", n.w).mit("l", n.l);
}

void art_schreiben(Objekt& ziel, const Mitschrift_Prozess& p) { ziel.mit("art", "prozess").mit("befehl", p.Befehl); }

void art_schreiben(Objekt& ziel, const Mitschrift_Fensterbefehl& f) {
    std::vector<Text> werte;
    for (const std::int64_t wert : f.Werte) werte.push_back(Json::Wert(wert));
    ziel.mit("art", "fensterbefehl").mit("fenster", f.Fenster).mit("ruf", f.Ruf).roh("werte", Json::Liste(werte));
}

void art_schreiben(Objekt& ziel, const Mitschrift_Pause& p) { ziel.mit("art", "pause").mit("ms", p.ms); }

void art_schreiben(Objekt& ziel, const Shell_Vorgang& v) {
    ziel.mit("art", "shell")
        .mit("code", v.Code)
        .mit("flags", v.Flags)
        .roh("von", Json::Textliste(v.von))
        .roh("nach", Json::Textliste(v.nach));
}

Text Eintrag_beschreiben(const Mitschrift_Eintrag& eintrag) {
    Objekt ziel;
    ziel.mit("nr", eintrag.Nr).mit("zeit", eintrag.Zeit);
    std::visit([&](const auto& was) { art_schreiben(ziel, was); }, eintrag.Was);
    return ziel.text();
}

Text Spieler_beschreiben(const Spielerauskunft& s) {
    return Objekt()
        .mit("klasse", s.Klasse)
        .mit("status", s.Status)
        .mit("position", s.Position)
        .mit("länge", s.Länge)
        .mit("lautstärke", s.Lautstärke)
        .mit("datei", s.Datei)
        .mit("sichtbar", s.sichtbar)
        .text();
}

// The main menu, or the menu entry of that name with what is below it.
Text Menü_beschreiben(const Ansicht& ansicht, const Text& name) {
    if (name.empty()) {
        for (const Fenster* fenster : ansicht.alle_Fenster())
            if (fenster->geladen() && fenster->menü() != nullptr && fenster->Name() != "Kontextmenüs")
                return Menübaum(fenster->menü()->einträge());
        throw Befehlsfehler("kein Fenster hat ein Menü");
    }
    for (const Fenster* fenster : ansicht.alle_Fenster()) {
        if (fenster->Name() == name && fenster->menü() != nullptr) return Menübaum(fenster->menü()->einträge());
        for (const Element* element : fenster->elemente()) {
            if (element->art() != Elementart::Menü) continue;
            if (element->voller_Name() == name || fenster->Name() + "." + element->voller_Name() == name)
                return Menübaum(static_cast<const Menüpunkt*>(element)->einträge());
        }
    }
    throw Befehlsfehler("kein solches Menü: " + name);
}

// A name without a dot is a window's, else a menu's; a box that is up goes by the kind of what is waited for.
bool Bild_machen(Ansicht_Bediener& ansicht, const Bildspeicher& bild, const Text& name, const Text& datei) {
    const Wartestand& stand = ansicht.Stand();
    if (name == "meldung" && stand.feld != nullptr) return bild.meldung(*stand.feld, datei);
    if (name == "eingabe" && stand.eingabe != nullptr) return bild.eingabe(*stand.eingabe, datei);
    if (name.find('.') == Text::npos) {
        Fenster& fenster = Fenster_suchen(ansicht, name);
        if (!fenster.geladen()) throw Befehlsfehler("das Fenster ist nicht geladen: " + name);
        return bild.fenster(fenster, datei);
    }
    const Element& element = Element_suchen(ansicht, name);
    if (element.art() != Elementart::Menü) throw Befehlsfehler("kein Menü: " + name);
    const auto& menü = static_cast<const Menüpunkt&>(element);
    if (menü.einträge().empty()) throw Befehlsfehler("das Menü ist leer: " + name);
    return bild.menü(menü, datei);
}

Text Registrierung_beschreiben(const Maschine& maschine) {
    Objekt schlüssel;
    for (const auto& [pfad, wert] : maschine.registrierung()) schlüssel.mit(pfad, wert);
    return schlüssel.text();
}

}  // namespace

void Schaubefehle_eintragen(Befehlstafel& tafel, Ansicht_Bediener& ansicht, Maschine& maschine, Bildspeicher bild) {
    tafel["zeige"] = [&ansicht](Befehlszeile& z) {
        const Text name = z.nächstes("Name");
        z.zu_Ende();
        ansicht.ausgeben(Element_beschreiben(Element_suchen(ansicht, name), name));
    };
    tafel["fenster"] = [&ansicht](Befehlszeile& z) {
        z.zu_Ende();
        std::vector<Text> teile;
        for (const Fenster* fenster : ansicht.fenster()) teile.push_back(Fenster_beschreiben(ansicht, *fenster));
        ansicht.ausgeben(Objekt().roh("fenster", Json::Liste(teile)).text());
    };
    tafel["elemente"] = [&ansicht](Befehlszeile& z) {
        const Fenster& fenster = Fenster_suchen(ansicht, z.nächstes("Fenster"));
        z.zu_Ende();
        std::vector<Text> namen;
        for (const Element* element : fenster.elemente())
            if (!element->Name().empty()) namen.push_back(element->voller_Name());
        ansicht.ausgeben(Objekt().roh("elemente", Json::Textliste(namen)).text());
    };
    tafel["menü"] = [&ansicht](Befehlszeile& z) {
        const Text name = z.mehr() ? z.nächstes("Name") : Text{};
        z.zu_Ende();
        ansicht.ausgeben(Objekt().roh("menü", Menü_beschreiben(ansicht, name)).text());
    };
    tafel["protokoll"] = [&ansicht, &maschine](Befehlszeile& z) {
        const Text alles = z.mehr() ? z.nächstes("alles") : Text{};
        z.zu_Ende();
        if (!alles.empty() && alles != "alles") throw Befehlsfehler("unbekannt: " + alles);
        std::vector<Text> teile;
        for (const auto& eintrag : maschine.mitschrift().nehmen(!alles.empty()))
            teile.push_back(Eintrag_beschreiben(eintrag));
        ansicht.ausgeben(Objekt().roh("protokoll", Json::Liste(teile)).text());
    };
    tafel["fokus"] = [&ansicht](Befehlszeile& z) {
        z.zu_Ende();
        const Element* element = ansicht.fokus();
        const Text name = element == nullptr ? Text{} : element->fenster().Name() + "." + element->voller_Name();
        ansicht.ausgeben(Objekt().mit("fokus", name).text());
    };
    tafel["zwischenablage"] = [&ansicht](Befehlszeile& z) {
        z.zu_Ende();
        ansicht.ausgeben(Objekt().mit("zwischenablage", ansicht.Zwischenablage()).text());
    };
    tafel["registrierung"] = [&ansicht, &maschine](Befehlszeile& z) {
        if (z.mehr()) {
            if (z.nächstes("setze") != "setze") throw Befehlsfehler("unbekannt; gemeint: registrierung setze");
            if (maschine.probe() == nullptr) throw Befehlsfehler("nur mit der Probe");
            const Text schlüssel = z.nächstes("Schlüssel"), wert = z.nächstes("Wert");
            const Text art = z.mehr() ? z.nächstes("dword") : Text{};
            z.zu_Ende();
            if (!art.empty() && art != "dword") throw Befehlsfehler("unbekannt: " + art);
            if (!maschine.Einstellung_setzen(schlüssel, wert, !art.empty())) throw Befehlsfehler("keine Zahl: " + wert);
            return;
        }
        ansicht.ausgeben(Objekt().roh("registrierung", Registrierung_beschreiben(maschine)).text());
    };
    tafel["bild"] = [&ansicht, bild = std::move(bild)](Befehlszeile& z) {
        const Text name = z.nächstes("Fenster oder Menü");
        const Text datei = z.nächstes("Datei");
        z.zu_Ende();
        if (!bild.fenster) throw Befehlsfehler("Bilder gibt es nur mit --ansicht qt");
        if (!Bild_machen(ansicht, bild, name, datei)) throw Befehlsfehler("das Bild ließ sich nicht schreiben: " + datei);
    };
    tafel["spieler"] = [&ansicht, &maschine](Befehlszeile& z) {
        z.zu_Ende();
        std::vector<Text> teile;
        for (const auto& spieler : maschine.Spielerliste()) teile.push_back(Spieler_beschreiben(spieler));
        ansicht.ausgeben(Objekt().roh("spieler", Json::Liste(teile)).text());
    };
}

}  // namespace tonkartei
