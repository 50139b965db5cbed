// A view that shows nothing and answers every box with its default: the base for tests that script only what they need.
#pragma once

#include "oberflaeche/ansicht.hpp"

namespace tonkartei {

class Stumme_Ansicht : public Ansicht {
public:
    std::vector<Text> Meldungen;  // "title|text" of every box

    Antwort melden(const Meldungsfeld& feld) override {
        Meldungen.push_back(feld.titel + "|" + feld.text);
        return feld.vorgabe;
    }
    Text eingeben(const Text&, const Text&, const Text&) override { return {}; }
    Text Verzeichnis_wählen(const Text&) override { return {}; }
    Text Datei_wählen(const Dateiwahl&) override { return {}; }
    std::optional<Farbe> Farbe_wählen(Farbe) override { return std::nullopt; }
    void Fenster_geändert(Fenster&) override {}
    void Element_geändert(Element&, unsigned) override {}
    void Fenster_malen(Fenster&) override {}
    void modal_laufen(Fenster&) override {}
    void Menü_zeigen(Menüpunkt&) override {}
    void Zwischenablage_setzen(const Text&) override {}
    int Textbreite(const Text& text, int punkte) const override { return static_cast<int>(Zeichenzahl(text)) * 12 * punkte; }
    int Texthöhe(int punkte) const override { return 20 * punkte; }
    Größe Wunschgröße(const Element&) const override { return {1200, 300}; }
    Größe Bildschirm() const override { return {19200, 15360}; }
    Bereich Rahmenrand(const Element&) const override { return {60, 240, 120, 300}; }
    int Zeilenhöhe(int punkte) const override { return 20 * punkte; }
    void Ereignisse_laufen_lassen() override {}
    void warten_bis(Fenster&, const std::function<bool()>&) override {}
    void Zeitgeber_gestellt(Zeitgeber&) override {}
    void Zeitgeber_entfernt(Zeitgeber&) override {}
    [[noreturn]] void an_Laufzeitfehler_enden(const Laufzeitfehler& fehler) override { throw fehler; }
};

// Says yes to every question.
class Ja_Ansicht : public Stumme_Ansicht {
public:
    Antwort melden(const Meldungsfeld&) override { return Antwort::Ja; }
};

}  // namespace tonkartei
