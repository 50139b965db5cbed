// A small program to try the operator on: one window with a control for every way in which a program can wait.
#include "bediener/bedienung.hpp"
#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/elemente.hpp"
#include "oberflaeche/fenster.hpp"
#include "oberflaeche/listen.hpp"
#include "oberflaeche/menue.hpp"
#include "oberflaeche/zeitgeber.hpp"

namespace {

using namespace tonkartei;

struct Dialog : Fenster {
    explicit Dialog(Ansicht& ansicht) : Fenster(ansicht, "Dialog", "Ein Dialog") {
        Ok.Klick.verbinden([this] { verstecken(); });
    }
    Textfeld Eingabe{*this, "Eingabe"};
    Knopf Ok{*this, "Ok", "&Ok"};

protected:
    Knoten anordnung() override { return Zeile({Eingabe, Ok}); }
};

struct Haupt : Fenster {
    Haupt(Ansicht& ansicht, const Plattform& plattform) : Fenster(ansicht, "Haupt", "Übung"), p(plattform) {
        Menü_setzen(menü);
        gesperrt.aktiv(false);
        verborgen.sichtbar(false);
        liste.setzen({"eins", "zwei", "drei"});
        auswahl.setzen({"#rot", "grün"});
        liste.Klick.verbinden([this] { zeigen_als("Zeile " + std::to_string(liste.gewählt())); });
        liste.Ziehmarke = "zeile";
        ziel.Abgelegt.verbinden([this](Element& quelle) { zeigen_als("von " + quelle.Name()); });
        Dateien_abgelegt.verbinden([this](const std::vector<Text>& pfade) { zeigen_als(pfade.back()); });
        knopf("Fragen", [this] { zeigen_als(this->ansicht().fragen("T", "a\rb\r\nc", Antwort::Nein) ? "ja" : "nein"); });
        knopf("Eingeben", [this] { zeigen_als(this->ansicht().eingeben("Text?", "T", "vorher")); });
        knopf("Ordner", [this] { zeigen_als(this->ansicht().Verzeichnis_wählen("Wohin?")); });
        knopf("Farbe", [this] {
            const auto farbe = this->ansicht().Farbe_wählen(65535);
            zeigen_als(farbe ? std::to_string(*farbe) : "keine");
        });
        knopf("Warten", [this] {
            dialog.zeigen();
            this->ansicht().warten_bis(dialog, [this] { return !dialog.sichtbar(); });
            zeigen_als(dialog.Eingabe.text());
        });
        knopf("Modal", [this] {
            dialog.zeigen_modal();
            zeigen_als("nach modal");
        });
        knopf("Endlos", [this] {
            for (;;) this->ansicht().Ereignisse_laufen_lassen();
        });
        knopf("Arbeit", [this] {
            while (!kasten.wert()) this->ansicht().Ereignisse_laufen_lassen();
            zeigen_als("fertig");
        });
        knopf("Schlafen", [this] { p.Rechner.Sleep(1200); });
        knopf("Schreiben", [this] {
            try {
                p.Dateisystem.schließen(p.Dateisystem.öffnen("probe.txt", Dateimodus::schreiben));
                zeigen_als("geschrieben");
            } catch (const Dateifehler& fehler) {
                zeigen_als(std::to_string(fehler.Nummer()));
            }
        });
        knopf("Würfeln", [this] {
            p.Rechner.Zufall_säen();
            zeigen_als(p.Rechner.Zufallszahl() == 0.25 ? "bestellt" : "frei");
        });
        knopf("Läuten", [this] { läuten = true; });
    }

    const Plattform p;
    Dialog dialog{ansicht()};
    Menü menü{*this, {{"Datei", "&Datei", ohne_Index, {}, {{"Leer", "Leer", ohne_Index, {}, {}}}}}};
    Schriftfeld ergebnis{*this, "Ergebnis"};
    Schriftfeld ticks{*this, "Ticks", "0"};
    Listenfeld liste{*this, "Liste"};
    Auswahlfeld auswahl{*this, "Auswahl"};
    Kasten kasten{*this, "Kasten", "K"};
    Regler regler{*this, "Regler", 0, 100};
    Schriftfeld ziel{*this, "Ziel", "Ziel"};
    Knopf gesperrt{*this, "Gesperrt", "G"};
    Knopf verborgen{*this, "Verborgen", "V"};
    bool läuten = false;
    int zähler = 0;
    Zeitgeber uhr{ansicht(), [this] {
                      ticks.beschriftung(std::to_string(++zähler));
                      if (läuten) ansicht().informieren("Uhr", "läutet");
                      läuten = false;
                  }};

protected:
    Knoten anordnung() override {
        std::vector<Knoten> alle;
        for (Element* e : elemente())
            if (e->art() != Elementart::Menü) alle.emplace_back(*e);
        return Spalte(std::move(alle));
    }
    void beim_Entladen() override { ansicht().beenden(); }

private:
    void knopf(const char* name, std::function<void()> was) {
        knöpfe_.push_back(std::make_unique<Knopf>(*this, name, name));
        knöpfe_.back()->Klick.verbinden(std::move(was));
    }
    void zeigen_als(const Text& text) { ergebnis.beschriftung(text.empty() ? "leer" : text); }

    std::vector<std::unique_ptr<Knopf>> knöpfe_;
};

class Übung : public Bedientes {
public:
    Übung(const Plattform& plattform, Ansicht& ansicht) : haupt_(ansicht, plattform) {}
    void starten() override {
        haupt_.zeigen();
        haupt_.uhr.stellen(500, true);
    }

private:
    Haupt haupt_;
};

}  // namespace

int main(int argc, char** argv) {
    return bedienen(argc, argv, [](const Plattform& plattform, Ansicht& ansicht, const Text&) {
        return std::make_unique<Übung>(plattform, ansicht);
    });
}
