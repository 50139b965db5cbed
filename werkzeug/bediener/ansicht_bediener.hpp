// The view whose event loop is the reading of command lines. Wherever the program waits - in its main loop, in a dialog, in
// a box - the view replies to the last line and reads the next one; a command that opens a box is answered from within.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <vector>

#include "bediener/leitung.hpp"
#include "bediener/zeitplan.hpp"
#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/fenstermaler.hpp"

namespace tonkartei {

// What the program waits for.
struct Wartestand {
    enum class Art { Schleife, Fenster, Meldung, Eingabe, Ordner, Datei, Farbwahl };

    Art art = Art::Schleife;
    const Fenster* fenster = nullptr;      // Fenster: the dialog
    const Meldungsfeld* feld = nullptr;    // Meldung
    const Eingabefeld* eingabe = nullptr;  // Eingabe
    const Dateiwahl* dateiwahl = nullptr;  // Datei

    // A box is left once this is set; the value is where the kind says.
    bool beantwortet = false;
    Antwort antwort = Antwort::OK;
    Text text;
    std::optional<Farbe> farbe;

    bool ist_Feld() const noexcept { return art != Art::Schleife && art != Art::Fenster; }
};

// The answers that a message box offers.
std::vector<Antwort> Antworten_von(const Meldungsfeld& feld);
// By the caption of its button; none for an unknown one.
std::optional<Antwort> Antwort_von(const Text& name);

// Time as the view sees it, in milliseconds since the start.
class Uhrwerk {
public:
    virtual ~Uhrwerk() = default;
    virtual std::int64_t jetzt() const = 0;
    // The real one; else it moves only by `vor`.
    virtual bool läuft_von_selbst() const = 0;
    // Moves on; the real one sleeps so long.
    virtual void vor(std::int64_t ms) = 0;
};

class Ansicht_Bediener : public Ansicht {
public:
    struct Teile {
        Leitung& leitung;
        Uhrwerk& uhr;
        // The simulated machine's screen; else the painter's.
        std::optional<Größe> bildschirm;
        // Ends the process as it stands.
        std::function<void(int)> abbrechen;
    };

    explicit Ansicht_Bediener(Teile teile) : t_(std::move(teile)) {}
    // Before the first window is loaded; a painter may need the view, so it comes later than it.
    void Maler_setzen(Fenstermaler& maler, std::function<void()> pumpen = {});

    // Does one line; Befehlsfehler when it cannot be done.
    std::function<void(const Text&)> Befehl;
    // Until the end is decided.
    void Hauptschleife();

    // --- for the commands ------------------------------------------------------------------------------------------------
    void ausgeben(const Text& zeile) { t_.leitung.schreiben(zeile); }
    Wartestand& Stand() { return stände_.empty() ? Grundstand_ : *stände_.back(); }
    // A handler by hand, under the guard.
    void von_Hand(const std::function<void()>& handler);
    // The end of the user's session: boxes that come up meanwhile take their default.
    void von_außen_schließen(Fenster& fenster);
    // Time is to pass, and timers are to run. While a box is up they rest.
    void vergehen(std::int64_t ms);
    void vormerken(Text zeile) { vorgemerkt_.push_back(std::move(zeile)); }
    const Text& Zwischenablage() const noexcept { return zwischenablage_; }
    [[noreturn]] void abbrechen(int status);

    // --- Ansicht
    // -----------------------------------------------------------------------------------------------------------
    Antwort melden(const Meldungsfeld& feld) override;
    Text eingeben(const Text& text, const Text& titel, const Text& vorgabe) override;
    Text Verzeichnis_wählen(const Text& titel) override;
    Text Datei_wählen(const Dateiwahl& wahl) override;
    std::optional<Farbe> Farbe_wählen(Farbe vorgabe) override;

    void Fenster_geändert(Fenster& fenster) override { maler_->Fenster_geändert(fenster); }
    void Element_geändert(Element& element, unsigned änderung) override { maler_->Element_geändert(element, änderung); }
    void Fenster_malen(Fenster& fenster) override { maler_->Fenster_malen(fenster); }
    void Fenster_verschwindet(Fenster& fenster) override { maler_->Fenster_verschwindet(fenster); }
    void modal_laufen(Fenster& fenster) override;
    void Menü_zeigen(Menüpunkt& wurzel) override;
    void Zwischenablage_setzen(const Text& text) override { zwischenablage_ = text; }
    void Fortschritt_beendet(const Text& text, int prozent) override;

    int Textbreite(const Text& text, int punkte) const override { return maler_->Textbreite(text, punkte); }
    int Texthöhe(int punkte) const override { return maler_->Texthöhe(punkte); }
    Größe Wunschgröße(const Element& element) const override { return maler_->Wunschgröße(element); }
    Größe Bildschirm() const override { return t_.bildschirm ? *t_.bildschirm : maler_->Bildschirm(); }
    Größe freie_Fläche(const Fenster& fenster) const override { return maler_->freie_Fläche(fenster); }
    Bereich Rahmenrand(const Element& rahmen) const override { return maler_->Rahmenrand(rahmen); }
    int Zeilenhöhe(int punkte) const override { return maler_->Zeilenhöhe(punkte); }

    void Ereignisse_laufen_lassen() override;
    void warten_bis(Fenster& fenster, const std::function<bool()>& bedingung) override;
    void Zeitgeber_gestellt(Zeitgeber& zeitgeber) override { zeitplan_.stellen(zeitgeber, t_.uhr.jetzt()); }
    void Zeitgeber_entfernt(Zeitgeber& zeitgeber) override { zeitplan_.entfernen(zeitgeber); }
    [[noreturn]] void an_Laufzeitfehler_enden(const Laufzeitfehler& fehler) override;

protected:
    void Fokus_zeigen(Element& element) override { maler_->Fokus_zeigen(element); }

private:
    struct Aufenthalt;
    void Feld_abwarten(Wartestand& stand);
    // One step of a loop: a piece of the time that is to pass, or one line of input.
    void Schritt();
    bool Zeitschritt(std::int64_t bis);
    void Zeile_abwarten();
    void bereit_melden();
    void Zeile_ausführen(const Text& zeile);
    void auslösen(Zeitgeber& zeitgeber);
    void Runde();

    Teile t_;
    Fenstermaler* maler_ = nullptr;
    std::function<void()> pumpen_;  // lets a toolkit catch up; empty without one
    Zeitplan zeitplan_;
    Wartestand Grundstand_;
    std::vector<Wartestand*> stände_;
    std::deque<Text> vorgemerkt_;
    Text zwischenablage_;
    std::optional<Text> fehler_;                // of the last line, goes into its reply
    std::optional<std::int64_t> vergehen_bis_;  // time that is still to pass
    bool Antwort_schuldig_ = true;              // the start counts as the first line
    bool von_außen_ = false;
    bool Sitzung_endet_ = false;
    int runden_ = 0;  // of the running handler without anything new beginning
};

}  // namespace tonkartei
