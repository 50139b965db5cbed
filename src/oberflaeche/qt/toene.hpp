// The tones that everything is drawn in: a light set, and a dark one that follows from the colour of the ground.
#pragma once

#include <QColor>
#include <QPalette>

class QWidget;

namespace tonkartei {

struct Töne {
    QColor Grund, Feld, Schrift, blass, Akzent, Akzent_hell, Akzent_dunkel, Linie, Linie_zart, gedrückt, Wert;
    QColor Zeichen;  // arrows, grips
    QColor Kante;    // of an empty check box
    QColor Rinne;    // of a scroll bar
    QColor Griff, Griff_betont, Griff_unten;
    QColor Haken;  // on the accent
    bool dunkel = false;

    static Töne hell();
    // Dark ones above such a ground; a light ground has no set of its own.
    static Töne für(const QColor& grund);
    // Those of the window that a palette belongs to, whatever colours a control has of its own.
    static Töne von(const QPalette& palette);
};

QPalette Farbtafel(const Töne& töne);

// Ratio of brightness as the eye sees it, 1 to 21.
double Kontrast(const QColor& a, const QColor& b);
// What a text needs against its ground.
inline constexpr double Kontrast_Text = 4.5;
// The colour, mixed with as little white (black on a light ground) as it takes to be read there.
QColor lesbar(const QColor& farbe, const QColor& grund);
// The same for a text on a widget, where its window is dark; elsewhere the colour as it is.
QColor lesbar_auf(const QWidget& widget, const QColor& farbe);

}  // namespace tonkartei
