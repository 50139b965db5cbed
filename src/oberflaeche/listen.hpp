// Controls with lines: list box, drop-down list, tab strip.
#pragma once

#include <vector>

#include "oberflaeche/elemente.hpp"

namespace tonkartei {

// Lines count from 0; -1 is no line. Choosing a line raises Klick every time, also for the one chosen already; clearing the
// choice (-1) raises nothing.
class Zeilenelement : public Element {
public:
    using Element::Element;

    int Anzahl() const noexcept { return static_cast<int>(zeilen_.size()); }
    const std::vector<Text>& zeilen() const noexcept { return zeilen_; }
    // Run-time error 9 outside the lines.
    const Text& zeile(int stelle) const;
    void zeile(int stelle, Text text);
    void hinzufügen(Text text);
    // All lines in one go; the choice is gone.
    void setzen(std::vector<Text> zeilen);
    // A chosen line that goes takes the choice along.
    void entfernen(int stelle);
    void leeren();

    int gewählt() const noexcept { return gewählt_; }
    // Error 380 outside -1 to the last line.
    void wähle(int stelle);
    // The choice moves there, for the eye; nothing is raised.
    void markieren(int stelle);
    // Text of the chosen line, empty without one.
    Text gewählter_Text() const;

    void Startwerte_merken() override;
    void Startwerte_setzen() override;

protected:
    virtual void Wahl_sichtbar_machen() {}

private:
    std::vector<Text> zeilen_, start_zeilen_;
    int gewählt_ = -1, start_gewählt_ = -1;
};

class Listenfeld : public Zeilenelement {
public:
    Listenfeld(Fenster& f, Text name, int index = ohne_Index)
        : Zeilenelement(f, Elementart::Liste, std::move(name), Text{}, index) {}
    // Said in its place while there is no line.
    const Text& leertext() const noexcept { return leertext_; }
    void leertext(Text wert) {
        if (leertext_ == wert) return;
        leertext_ = std::move(wert);
        melden(Änderung_Aussehen);
    }
    // Choosing does something at once: keys only move the choice, Return and blank choose.
    bool wählt_erst_auf_Return = false;
    // First visible line. A choice outside the visible lines moves it just as far as needed.
    int erste() const noexcept { return erste_; }
    // Scrolling by hand or view; raises nothing.
    void erste(int stelle);
    // Lines that fit into the control.
    int sichtbare_Zeilen() const;
    // A click by hand on a line.
    void von_Hand_wählen(int stelle) { wähle(stelle); }
    void von_Hand_klicken() override {}

protected:
    void Wahl_sichtbar_machen() override;

private:
    Text leertext_;
    int erste_ = 0;
};

// Drop-down list without free text.
class Auswahlfeld : public Zeilenelement {
public:
    Auswahlfeld(Fenster& f, Text name, int index = ohne_Index)
        : Zeilenelement(f, Elementart::Auswahl, std::move(name), Text{}, index) {}
    void von_Hand_klicken() override {}
};

// Tab strip; its lines are the tabs. Klick is raised only when the tab changes.
class Reiter : public Element {
public:
    Reiter(Fenster& f, Text name, std::vector<Text> tabs)
        : Element(f, Elementart::Reiter, std::move(name), Text{}, ohne_Index), tabs_(std::move(tabs)) {}
    const std::vector<Text>& tabs() const noexcept { return tabs_; }
    int wert() const noexcept { return wert_; }
    void wert(int tab);
    void von_Hand_klicken() override {}
    void Startwerte_setzen() override;

private:
    std::vector<Text> tabs_;
    int wert_ = 0;
};

}  // namespace tonkartei
