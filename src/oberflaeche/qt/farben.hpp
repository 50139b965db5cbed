// The colours of everything that is drawn. All of them come from a palette, and a palette from one set of tones, so that a
// window with a ground of its own, or a dark scheme, is right throughout.
#pragma once

#include <QColor>
#include <QPalette>

#include "oberflaeche/farbe.hpp"

namespace tonkartei {

// As the user's system wishes it.
enum class Farbschema { hell, dunkel, kontrast_hell, kontrast_dunkel };

// Contrasts that can be read, and that can be made out.
inline constexpr double lesbarer_Text = 4.5, erkennbare_Linie = 3.0;

// Ratio of brightness as the eye sees it, 1 to 21.
double Kontrast(const QColor& a, const QColor& b);
// White stands out from it better than black.
bool ist_dunkel(const QColor& grund);
// The colour itself where it has that contrast to the ground; else lightened on a dark ground, darkened on a light one,
// just as far as needed or possible.
QColor abgesetzt(const QColor& farbe, const QColor& grund, double kontrast = lesbarer_Text);
// The surface with as much of the hue, at most `anteil` of it, as leaves the text on it readable.
QColor getönt(const QColor& fläche, const QColor& ton, double anteil, const QColor& schrift);

// As drawn on the light ground of the program.
struct Töne {
    QColor Grund = 0xfff3f5f8, Feld = 0xffffffff, Wert = 0xfffafbfc;
    QColor Schrift = 0xff1d2733, blass = 0xff5f6b78, Zeichen = 0xff55626f;
    QColor Akzent = 0xff2f6f9f, Akzent_hell = 0xffe6f0f7, Akzent_dunkel = 0xff245a83, auf_Akzent = 0xffffffff,
           gedrückt = 0xffd7e5ef;
    QColor Linie = 0xff7d8894, Linie_zart = 0xff848f9b, Kante = 0xff6b7783, Schatten = 0xff55626f;
    QColor Bahn = 0xffeef1f4, Griff = 0xff7d8894, Griff_betont = 0xff6b7783, Griff_gehalten = 0xff55626f;

    static Töne zu(const QColor& grund);
    static Töne im(Farbschema schema);
    // Those that the palette was made of, whatever colours a control has of its own.
    static Töne von(const QPalette& palette);
    QPalette Palette() const;
};

QPalette Farbtafel(Farbschema schema = Farbschema::hell);
// For a window or a frame with that ground.
QPalette Farbtafel_für(Farbe grund);

}  // namespace tonkartei
