// The layout of a window: a small tree of rows, columns, grids, frames and overlays of its controls. It is worked out here,
// in twips, from the sizes that the view wishes for each control; so every view shows the same window.
#pragma once

#include <initializer_list>
#include <memory>
#include <unordered_map>
#include <vector>

#include "oberflaeche/geometrie.hpp"

namespace tonkartei {

class Ansicht;
class Element;

class Knoten {
public:
    enum class Sorte { Abstand, Element, Zeile, Spalte, Gitter, Gruppe, Überlagerung };

    Knoten() = default;
    // A control as a leaf.
    Knoten(Element& element);  // NOLINT(google-explicit-constructor): leaves are written as the controls themselves

    // Shares of the room that is left over; a leaf without a share keeps its wished size.
    Knoten dehnen(int waagrecht, int senkrecht = 0) &&;
    // At least so many characters wide, lines high (of the control's font).
    Knoten zeichen(int anzahl) &&;
    Knoten zeilen(int anzahl) &&;
    // At least so large, in twips; 0: as wished.
    Knoten mindestens(int breite, int höhe) &&;
    // Keeps its place while hidden. (Else a hidden control takes no room.)
    Knoten Platz_halten() &&;
    // Gap between the children, margin around them; -1 the usual ones.
    Knoten lücke(int twips) &&;
    Knoten rand(int twips) &&;
    // In a row: aligned to the top instead of the middle.
    Knoten oben_anliegend() &&;

    friend Knoten Zeile(std::vector<Knoten> kinder);
    friend Knoten Spalte(std::vector<Knoten> kinder);
    friend Knoten Gitter(int spalten, std::vector<Knoten> kinder);
    friend Knoten Gruppe(Element& rahmen, Knoten kind);
    friend Knoten Überlagerung(std::vector<Knoten> kinder);
    friend Knoten Feder(int waagrecht, int senkrecht);
    friend class Anordnung;

private:
    Sorte sorte_ = Sorte::Abstand;
    Element* element_ = nullptr;
    std::vector<Knoten> kinder_;
    int spalten_ = 1;
    int dehnung_x_ = 0, dehnung_y_ = 0;
    int zeichen_ = 0, zeilen_ = 0;
    Größe mindest_{};
    int lücke_ = -1, rand_ = -1;
    bool hält_Platz_ = false, oben_ = false;
};

Knoten Zeile(std::vector<Knoten> kinder);
Knoten Spalte(std::vector<Knoten> kinder);
// Row by row; columns as wide as their widest cell.
Knoten Gitter(int spalten, std::vector<Knoten> kinder);
// What the frame holds; the children's places are relative to it.
Knoten Gruppe(Element& rahmen, Knoten kind);
// All in the same place, the later ones above.
Knoten Überlagerung(std::vector<Knoten> kinder);
// Empty room that stretches.
Knoten Feder(int waagrecht = 1, int senkrecht = 0);

// A tree at work: measures, and sets the controls' places.
class Anordnung {
public:
    Anordnung(Ansicht& ansicht, Knoten wurzel);
    // The least size in which everything shown has its room. Lists, and what lies in frames that scroll, give way as far as
    // `frei`, the room on the screen, asks for it (0: there is no limit).
    Größe Mindestgröße(Größe frei = {});
    void anordnen(Größe größe);
    bool leer() const noexcept { return wurzel_.kinder_.empty() && wurzel_.element_ == nullptr; }

private:
    // Of one working out: what a node asks for does not change within it, and is asked for on every level above.
    Größe messen(const Knoten& knoten) const;
    Größe gemessen(const Knoten& knoten) const;
    bool zählt(const Knoten& knoten) const;
    void setzen(const Knoten& knoten, Bereich platz) const;
    void Rahmen_verteilen(const Knoten& knoten, Element* rahmen) const;
    Größe messen_Reihe(const Knoten& knoten, bool waagrecht) const;
    void setzen_Reihe(const Knoten& knoten, Bereich platz, bool waagrecht) const;
    void Gittermaße(const Knoten& knoten, std::vector<int>& breiten, std::vector<int>& höhen) const;
    void setzen_Gitter(const Knoten& knoten, Bereich platz) const;

    Ansicht& ansicht_;
    Knoten wurzel_;
    mutable std::unordered_map<const Knoten*, Größe> gemessene_;
    Größe zu_viel_;  // by so much what scrolls is to be smaller than it wishes
};

}  // namespace tonkartei
