// The desktop: windows by Fenstermaler_Qt, boxes and choices as Qt dialogs with German buttons, waiting in nested loops,
// timers. Needs a living Qt_Umgebung.
#pragma once

#include <memory>

#include "oberflaeche/ansicht.hpp"

namespace tonkartei {

class Fenstermaler_Qt;

class Ansicht_Qt : public Ansicht {
public:
    Ansicht_Qt();
    ~Ansicht_Qt() override;

    Antwort melden(const Meldungsfeld& feld) override;
    Text eingeben(const Text& text, const Text& titel, const Text& vorgabe) override;
    Text Verzeichnis_wählen(const Text& titel) override;
    Text Datei_wählen(const Dateiwahl& wahl) override;
    std::optional<Farbe> Farbe_wählen(Farbe vorgabe) override;

    void Fenster_geändert(Fenster& fenster) override;
    void Element_geändert(Element& element, unsigned änderung) override;
    void Fenster_malen(Fenster& fenster) override;
    void Fenster_verschwindet(Fenster& fenster) override;
    void modal_laufen(Fenster& fenster) override;
    void Menü_zeigen(Menüpunkt& wurzel) override;
    void Zwischenablage_setzen(const Text& text) override;
    bool Tray_da() const override;
    bool Handbuch_zeigen() override;
    bool fragt_nach_Medien() const override { return static_cast<bool>(bei_Medien); }
    void Medien_zeigen(const Medienstand& stand) override;
    void mitteilen(const Text& titel, const Text& text) override;

    int Textbreite(const Text& text, int punkte) const override;
    int Texthöhe(int punkte) const override;
    Größe Wunschgröße(const Element& element) const override;
    Größe Bildschirm() const override;
    Größe freie_Fläche(const Fenster& fenster) const override;
    Bereich Rahmenrand(const Element& rahmen) const override;
    int Zeilenhöhe(int punkte) const override;

    void Ereignisse_laufen_lassen() override;
    void warten_bis(Fenster& fenster, const std::function<bool()>& bedingung) override;
    void Zeitgeber_gestellt(Zeitgeber& zeitgeber) override;
    void Zeitgeber_entfernt(Zeitgeber& zeitgeber) override;
    [[noreturn]] void an_Laufzeitfehler_enden(const Laufzeitfehler& fehler) override;

    // Handles events until the end is decided or no window is loaded any more.
    void Hauptschleife();
    Fenstermaler_Qt& maler() noexcept;
    // The user's session ends: the main window closes, boxes take their default.
    void Sitzung_beenden();
    // Whoever passes on what plays, and who shows a word; none at first.
    std::function<void(const Medienstand&)> bei_Medien;
    std::function<void(const Text& titel, const Text& text)> bei_Mitteilung;
    // Calls it from the main loop whenever the descriptor can be read from; -1 is none.
    void bei_Lesbarkeit(int deskriptor, std::function<void()> handler);

protected:
    void Fokus_zeigen(Element& element) override;

private:
    struct Innen;
    std::unique_ptr<Innen> innen_;
};

}  // namespace tonkartei
