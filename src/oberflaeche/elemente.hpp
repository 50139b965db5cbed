// The simple controls. Setting a value raises its event whether a hand or the code set it: for texts, boxes and sliders
// only when the value changed; for option buttons on every choosing.
#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include "oberflaeche/element.hpp"

namespace tonkartei {

// Controls that stand alone have the index -1.
inline constexpr int ohne_Index = -1;

class Schriftfeld : public Element {
public:
    Schriftfeld(Fenster& f, Text name, Text beschriftung = {}, int index = ohne_Index)
        : Element(f, Elementart::Schrift, std::move(name), std::move(beschriftung), index) {}
    enum class Ausrichtung { links, Mitte, rechts };
    Ausrichtung ausrichtung = Ausrichtung::links;
    bool umbrechen = false;   // wraps at the width
    bool eingerahmt = false;  // sunken frame, for values
    bool Ziffern = false;     // digits of a clock, of seven segments each
    // The text is data: "&" marks nothing unless doubled.
    bool wie_Daten = false;
};

class Knopf : public Element {
public:
    Knopf(Fenster& f, Text name, Text beschriftung = {}, int index = ohne_Index)
        : Element(f, Elementart::Knopf, std::move(name), std::move(beschriftung), index) {}
    // Name of a picture of the program that is shown instead of the caption; empty: none.
    Text Bild;
    // Another picture, while the window is up.
    void bild(Text neu) {
        if (Bild == neu) return;
        Bild = std::move(neu);
        melden(Änderung_Aussehen);
    }
    // Drawn flat and small, for rows of tool buttons.
    bool klein = false;
};

class Kasten : public Element {
public:
    Kasten(Fenster& f, Text name, Text beschriftung = {}, int index = ohne_Index)
        : Element(f, Elementart::Kasten, std::move(name), std::move(beschriftung), index) {}
    bool wert() const noexcept { return wert_; }
    // Raises Klick when it changes.
    void wert(bool neu);
    void von_Hand_klicken() override { wert(!wert_); }
    void Startwerte_merken() override;
    void Startwerte_setzen() override;

private:
    bool wert_ = false, start_ = false;
};

// Option buttons of one group in a window exclude each other.
class Optionsfeld : public Element {
public:
    Optionsfeld(Fenster& f, Text name, Text beschriftung = {}, int index = ohne_Index)
        : Element(f, Elementart::Option, std::move(name), std::move(beschriftung), index), Gruppe(Name()) {}
    // Those of the same name, unless told otherwise.
    Text Gruppe;
    bool wert() const noexcept { return wert_; }
    // Chooses it, clears the others of its group, raises Klick even when it was chosen already. There is no unchoosing.
    void wählen();
    void von_Hand_klicken() override { wählen(); }
    void Startwerte_merken() override;
    void Startwerte_setzen() override;

private:
    bool wert_ = false, start_ = false;
};

class Textfeld : public Element {
public:
    Textfeld(Fenster& f, Text name, Text inhalt = {}, int index = ohne_Index)
        : Element(f, Elementart::Eingabe, std::move(name), {}, index), text_(std::move(inhalt)) {}
    const Text& text() const noexcept { return text_; }
    // Raises Geändert when it changes.
    void text(Text neu);
    Ereignis<> Geändert;
    // Only to be read and copied from.
    bool nur_lesen = false;
    // All of it is marked, ready to be typed over.
    void alles_markieren() {
        ++markierungen_;
        melden(Änderung_Wert);
    }
    int Markierungen() const noexcept { return markierungen_; }
    // With a button in it that empties it.
    bool leerbar = false;
    void Startwerte_merken() override;
    void Startwerte_setzen() override;

private:
    Text text_, start_;
    int markierungen_ = 0;
};

// Slider or scroll bar.
class Regler : public Element {
public:
    enum class Form { Schieber, Bildlauf };
    Regler(Fenster& f, Text name, int min, int max, int index = ohne_Index, Form form = Form::Schieber)
        : Element(f, Elementart::Regler, std::move(name), {}, index), form_(form), min_(min), max_(max), wert_(min) {}
    int min() const noexcept { return min_; }
    int max() const noexcept { return max_; }
    int wert() const noexcept { return wert_; }
    Form form() const noexcept { return form_; }
    // The value follows into the new range; that raises Geändert when it moves the value.
    void bereich(int min, int max);
    // Held to the range. Raises Geändert when it changes.
    void wert(int neu);
    // The hand's move: value, then Gescrollt.
    void von_Hand_schieben(int neu);
    Ereignis<> Geändert;
    Ereignis<> Gescrollt;  // the hand alone
    bool senkrecht = false;
    // Grows downward or to the left, and not upward or to the right.
    bool umgekehrt = false;
    // With a grip for a hand that has other things to look at.
    bool griffig = false;
    void Startwerte_merken() override;
    void Startwerte_setzen() override;

private:
    Form form_;
    int min_, max_, wert_;
    int start_min_ = 0, start_max_ = 0, start_wert_ = 0;
};

// Up-down switch of three positions that its handler brings back to the middle: 1 up, 2 at rest, 3 down.
class Dreistufer : public Element {
public:
    static constexpr int oben_Stufe = 1, Ruhe = 2, unten_Stufe = 3;
    Dreistufer(Fenster& f, Text name, int index = ohne_Index)
        : Element(f, Elementart::Dreistufer, std::move(name), {}, index) {}
    int wert() const noexcept { return wert_; }
    // Held to the three positions. Raises Geändert when it changes.
    void wert(int neu);
    Ereignis<> Geändert;
    // Only its arrows do something.
    void von_Hand_klicken() override {}
    void Startwerte_setzen() override;

private:
    int wert_ = Ruhe;
};

// How far a frame that scrolls reaches beyond what it holds, to the right; twips.
inline constexpr int Rollrand = 8 * Twips_je_Pixel;

// Frame with a title; without one a bare panel.
class Rahmen : public Element {
public:
    Rahmen(Fenster& f, Text name, Text beschriftung = {}, int index = ohne_Index)
        : Element(f, Elementart::Rahmen, std::move(name), std::move(beschriftung), index) {}
    ~Rahmen() override;
    // Drawn opaque above what lies under it.
    bool deckend = false;
    // What it holds may be higher than it is, and is then scrolled. Without a caption; reaches into the margin at its right.
    bool rollbar = false;
    // Twips, told by the layout.
    int Inhaltshöhe() const noexcept { return inhaltshöhe_; }
    void Inhaltshöhe(int neu) {
        if (std::exchange(inhaltshöhe_, neu) != neu) melden(Änderung_Lage);
    }
    // The window that fills it as a part of this one (`Fenster::einbetten`).
    Fenster* Inhalt = nullptr;

private:
    int inhaltshöhe_ = 0;
};

class Balken : public Element {
public:
    explicit Balken(Fenster& f, Text name, int index = ohne_Index)
        : Element(f, Elementart::Balken, std::move(name), {}, index) {}
    int wert() const noexcept { return wert_; }  // 0 to 100
    void wert(int neu);
    // A bar of a chart: filled with its colour from end to end, its length tells.
    bool Diagramm = false;
    void Startwerte_setzen() override;

private:
    int wert_ = 0;
};

// Twips in the control.
struct Linie {
    int x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    Farbe farbe = Farbe_Schwarz;
    bool operator==(const Linie&) const = default;
};

// Picture of the program, by its name, or a ground for lines; lines that join are one stroke.
class Bildfläche : public Element {
public:
    Bildfläche(Fenster& f, Text name, Text bild, int index = ohne_Index)
        : Element(f, Elementart::Fläche, std::move(name), {}, index), Bild(std::move(bild)) {}
    Text Bild;
    Größe Wunsch{720, 720};
    bool eingerahmt = false;  // on a small panel of its own
    // A fine grid behind the lines; 0 none.
    int Rasterspalten = 0, Rasterzeilen = 0;
    const std::vector<Linie>& linien() const noexcept { return linien_; }
    void linien(std::vector<Linie> neue);
    void Startwerte_setzen() override;

private:
    std::vector<Linie> linien_;
};

// Tray symbol: Klick is its left button, Rechtsklick its right one. Hidden at first.
class Traysymbol : public Element {
public:
    Traysymbol(Fenster& f, Text name) : Element(f, Elementart::Symbol, std::move(name), {}, ohne_Index) { sichtbar(false); }
};

}  // namespace tonkartei
