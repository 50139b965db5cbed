#include <algorithm>

#include "bediener/ansicht_bediener.hpp"
#include "bediener/befehle.hpp"
#include "bediener/namen.hpp"
#include "oberflaeche/fenster.hpp"
#include "oberflaeche/hand.hpp"
#include "oberflaeche/listen.hpp"

namespace tonkartei {
namespace {

class Hände {
public:
    explicit Hände(Ansicht_Bediener& ansicht) : a_(ansicht) {}

    void klicken(Befehlszeile& z, bool doppelt) const {
        Element& e = Element_von(z);
        const int x = z.mehr() ? Ort(z) : 0;
        const int y = z.mehr() ? Ort(z) : 0;
        z.zu_Ende();
        bedienbar_prüfen(a_, e);
        tun(e, [&] { doppelt ? Hand::doppelklicken(e, x, y) : Hand::klicken(e, x, y); });
    }

    void rechtsklicken(Befehlszeile& z) const {
        Element& e = Element_von(z);
        const long zeile = z.mehr() ? z.Zahl("Zeile") : -1;
        z.zu_Ende();
        bedienbar_prüfen(a_, e);
        if (zeile >= 0) Zeile_prüfen(e, zeile);
        tun(e, [&] { Hand::rechtsklicken(e, static_cast<int>(zeile)); });
    }

    void drücken(Befehlszeile& z, bool los) const {
        Element& e = Element_von(z);
        const int x = z.mehr() ? Ort(z) : 0;
        z.zu_Ende();
        bedienbar_prüfen(a_, e);
        tun(e, [&] { los ? Hand::loslassen(e, x, 0) : Hand::drücken(e, x, 0); });
    }

    void setzen(Befehlszeile& z) const {
        Element& e = Element_von(z);
        const Text wert = z.rest();
        bedienbar_prüfen(a_, e);
        switch (e.art()) {
            case Elementart::Eingabe:
                if (static_cast<Textfeld&>(e).nur_lesen) throw Befehlsfehler("das Feld ist nur zu lesen");
                tun(e, [&] { Hand::schreiben(e, wert); });
                break;
            case Elementart::Auswahl: {
                const int zeile = Zeile_mit(static_cast<const Zeilenelement&>(e), wert);
                tun(e, [&] { Hand::wählen(e, zeile); });
                break;
            }
            case Elementart::Regler: {
                Befehlszeile zahl(wert);
                const long ziel = zahl.Zahl("Wert");
                tun(e, [&] { Hand::schieben(e, static_cast<int>(ziel)); });
                break;
            }
            case Elementart::Dreistufer: {
                Befehlszeile zahl(wert);
                const long ziel = zahl.Zahl("Wert");
                if (ziel != Dreistufer::oben_Stufe && ziel != Dreistufer::unten_Stufe)
                    throw Befehlsfehler("keine Stufe, auf die eine Hand stellt: " + wert);
                tun(e, [&] { Hand::schieben(e, static_cast<int>(ziel)); });
                break;
            }
            default: throw Befehlsfehler("lässt sich nicht setzen: " + e.voller_Name());
        }
    }

    void wählen(Befehlszeile& z) const {
        Element& e = Element_von(z);
        const long zeile = z.Zahl("Zeile");
        z.zu_Ende();
        bedienbar_prüfen(a_, e);
        if (zeile != -1 || e.art() != Elementart::Liste) Zeile_prüfen(e, zeile);
        tun(e, [&] { Hand::wählen(e, static_cast<int>(zeile)); });
    }

    void Taste_drücken(Befehlszeile& z) const {
        const Text name = z.nächstes("Name");
        const Taste taste = Taste_von(z.nächstes("Taste"));
        z.zu_Ende();
        Element& e = ist_Fenstername(a_, name) ? Empfänger(Fenster_suchen(a_, name)) : Element_suchen(a_, name);
        bedienbar_prüfen(a_, e);
        tun(e, [&] {
            if (e.nimmt_Fokus()) a_.fokus(e);
            Hand::Taste_drücken(e, taste);
        });
    }

    void ziehen(Befehlszeile& z) const {
        Element& quelle = Element_von(z);
        Element& ziel = Element_von(z);
        z.zu_Ende();
        bedienbar_prüfen(a_, quelle);
        bedienbar_prüfen(a_, ziel);
        if (!ziel.Abgelegt.hat_Hörer()) throw Befehlsfehler("nimmt nichts an: " + ziel.voller_Name());
        if (quelle.Ziehmarke.empty() && !quelle.Ziehen_beginnt.hat_Hörer())
            throw Befehlsfehler("von hier lässt sich nichts ziehen: " + quelle.voller_Name());
        tun(quelle, [&] { Hand::ablegen(quelle, ziel); });
    }

    void Dateien_ablegen(Befehlszeile& z) const {
        const Text name = z.nächstes("Name");
        std::vector<Text> pfade;
        do pfade.push_back(z.nächstes("Pfad"));
        while (z.mehr());
        if (ist_Fenstername(a_, name)) {
            Fenster& f = Fenster_suchen(a_, name);
            bedienbar_prüfen(a_, f);
            if (!f.Dateien_abgelegt.hat_Hörer()) throw Befehlsfehler("nimmt keine Dateien an: " + name);
            a_.von_Hand([&] { f.Dateien_abgelegt(pfade); });
            return;
        }
        Element& e = Element_suchen(a_, name);
        bedienbar_prüfen(a_, e);
        if (e.Dateien_abgelegt.hat_Hörer())
            tun(e, [&] { Hand::Dateien_ablegen(e, pfade); });
        else if (e.fenster().Dateien_abgelegt.hat_Hörer())
            tun(e, [&] { e.fenster().Dateien_abgelegt(pfade); });
        else
            throw Befehlsfehler("nimmt keine Dateien an: " + name);
    }

    void Maus_bewegen(Befehlszeile& z) const {
        const Text name = z.nächstes("Name");
        const bool mit_Ort = z.mehr();
        const int x = mit_Ort ? Ort(z) : 0;
        const int y = mit_Ort ? Ort(z) : 0;
        z.zu_Ende();
        if (ist_Fenstername(a_, name)) {
            Fenster& f = Fenster_suchen(a_, name);
            bedienbar_prüfen(a_, f);
            a_.von_Hand([&] { f.Mausbewegung(); });
            return;
        }
        Element& e = Element_suchen(a_, name);
        sichtbar_prüfen(a_, e);
        a_.von_Hand([&] { Hand::Maus_bewegen(e, x, y); });
    }

    void schließen(Befehlszeile& z) const {
        Fenster& f = Fenster_von(z);
        const Text wie = z.mehr() ? z.nächstes("extern") : Text{};
        z.zu_Ende();
        if (wie == "extern") {
            if (!f.geladen()) throw Befehlsfehler("das Fenster ist nicht geladen: " + f.Name());
            a_.von_außen_schließen(f);
            return;
        }
        if (!wie.empty()) throw Befehlsfehler("unbekannt: " + wie);
        kein_Feld();
        bedienbar_prüfen(a_, f);
        a_.von_Hand([&] { f.schließen(Schließgrund::Hand); });
    }

    void Zustand_setzen(Befehlszeile& z) const {
        Fenster& f = Fenster_von(z);
        const Text wie = z.nächstes("Zustand");
        z.zu_Ende();
        if (wie != "normal" && wie != "minimiert") throw Befehlsfehler("kein solcher Zustand: " + wie);
        bedienbar_prüfen(a_, f);
        const auto neu = wie == "minimiert" ? Fensterzustand::minimiert : Fensterzustand::normal;
        a_.von_Hand([&] {
            f.von_Hand_Zustand(neu);
            a_.Fenster_geändert(f);
        });
    }

    void bewegen(Befehlszeile& z, bool Größe) const {
        Fenster& f = Fenster_von(z);
        const int eins = static_cast<int>(z.Zahl("Maß")), zwei = static_cast<int>(z.Zahl("Maß"));
        z.zu_Ende();
        bedienbar_prüfen(a_, f);
        if (f.zustand() == Fensterzustand::minimiert) throw Befehlsfehler("das Fenster ist minimiert: " + f.Name());
        if (Größe && !f.größenveränderlich) throw Befehlsfehler("das Fenster hat eine feste Größe: " + f.Name());
        a_.von_Hand([&] {
            Größe ? f.von_Hand_bemessen(eins, zwei) : f.von_Hand_bewegt(eins, zwei);
            a_.Fenster_geändert(f);
        });
    }

    // While a box is up the hand can do nothing else.
    void kein_Feld() const {
        if (a_.Stand().ist_Feld()) throw Befehlsfehler("das Programm wartet auf eine Antwort");
    }

private:
    Element& Element_von(Befehlszeile& z) const { return Element_suchen(a_, z.nächstes("Name")); }
    Fenster& Fenster_von(Befehlszeile& z) const { return Fenster_suchen(a_, z.nächstes("Fenster")); }
    static int Ort(Befehlszeile& z) { return static_cast<int>(z.Zahl("Ort")); }

    // Working a control brings its window to the front, as a click does.
    void tun(Element& e, const std::function<void()>& handlung) const {
        a_.von_Hand([&] {
            Fenster& f = e.fenster();
            if (f.sichtbar() && e.art() != Elementart::Symbol && a_.fenster().front() != &f) f.nach_vorn();
            handlung();
        });
    }

    static void Zeile_prüfen(const Element& e, long zeile) {
        long anzahl = 0;
        if (e.art() == Elementart::Reiter)
            anzahl = static_cast<long>(static_cast<const Reiter&>(e).tabs().size());
        else if (e.art() == Elementart::Liste || e.art() == Elementart::Auswahl)
            anzahl = static_cast<const Zeilenelement&>(e).Anzahl();
        else
            throw Befehlsfehler("hat keine Zeilen: " + e.voller_Name());
        if (zeile < 0 || zeile >= anzahl) throw Befehlsfehler("keine solche Zeile: " + std::to_string(zeile));
    }

    static int Zeile_mit(const Zeilenelement& auswahl, const Text& wert) {
        const auto fund = std::find(auswahl.zeilen().begin(), auswahl.zeilen().end(), wert);
        if (fund != auswahl.zeilen().end()) return static_cast<int>(fund - auswahl.zeilen().begin());
        if (!wert.starts_with('#')) throw Befehlsfehler("keine solche Zeile: " + wert);
        Befehlszeile zahl(wert.substr(1));
        const long zeile = zahl.Zahl("Zeile");
        Zeile_prüfen(auswahl, zeile);
        return static_cast<int>(zeile);
    }

    // Who gets a key that goes to the window.
    Element& Empfänger(Fenster& f) const {
        if (a_.fokus() != nullptr && &a_.fokus()->fenster() == &f) return *a_.fokus();
        for (Element* e : f.elemente())
            if (e->nimmt_Fokus()) return *e;
        throw Befehlsfehler("nichts in dem Fenster nimmt Tasten an: " + f.Name());
    }

    Ansicht_Bediener& a_;
};

}  // namespace

Taste Taste_von(const Text& name) {
    static const std::map<Text, Taste::Art> Namen{{"Return", Taste::Art::Return}, {"Escape", Taste::Art::Escape},
                                                  {"Tab", Taste::Art::Tab},       {"Auf", Taste::Art::Auf},
                                                  {"Ab", Taste::Art::Ab},         {"Rück", Taste::Art::Löschen}};
    Taste taste;
    if (const auto fund = Namen.find(name); fund != Namen.end()) {
        taste.art = fund->second;
    } else if (name.starts_with("Alt+") && Zeichenzahl(name) == 5) {
        taste.art = Taste::Art::Alt;
        taste.zeichen = name.substr(4);
    } else if (Zeichenzahl(name) == 1) {
        taste.zeichen = name;
    } else {
        throw Befehlsfehler("keine solche Taste: " + name);
    }
    return taste;
}

void Handbefehle_eintragen(Befehlstafel& tafel, Ansicht_Bediener& ansicht) {
    const Hände h(ansicht);
    const auto eintragen = [&](const char* wort, auto was) {
        tafel[wort] = [h, was](Befehlszeile& z) {
            h.kein_Feld();
            was(h, z);
        };
    };
    eintragen("klick", [](const Hände& hand, Befehlszeile& z) { hand.klicken(z, false); });
    eintragen("doppelklick", [](const Hände& hand, Befehlszeile& z) { hand.klicken(z, true); });
    eintragen("rechtsklick", [](const Hände& hand, Befehlszeile& z) { hand.rechtsklicken(z); });
    eintragen("drücke", [](const Hände& hand, Befehlszeile& z) { hand.drücken(z, false); });
    eintragen("loslasse", [](const Hände& hand, Befehlszeile& z) { hand.drücken(z, true); });
    eintragen("setze", [](const Hände& hand, Befehlszeile& z) { hand.setzen(z); });
    eintragen("wähle", [](const Hände& hand, Befehlszeile& z) { hand.wählen(z); });
    eintragen("taste", [](const Hände& hand, Befehlszeile& z) { hand.Taste_drücken(z); });
    eintragen("ziehe", [](const Hände& hand, Befehlszeile& z) { hand.ziehen(z); });
    eintragen("ablage", [](const Hände& hand, Befehlszeile& z) { hand.Dateien_ablegen(z); });
    eintragen("maus", [](const Hände& hand, Befehlszeile& z) { hand.Maus_bewegen(z); });
    eintragen("zustand", [](const Hände& hand, Befehlszeile& z) { hand.Zustand_setzen(z); });
    eintragen("lage", [](const Hände& hand, Befehlszeile& z) { hand.bewegen(z, false); });
    eintragen("größe", [](const Hände& hand, Befehlszeile& z) { hand.bewegen(z, true); });
    tafel["schließe"] = [h](Befehlszeile& z) { h.schließen(z); };
}

}  // namespace tonkartei
