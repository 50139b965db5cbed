#include "oberflaeche/qt/farben.hpp"

#include <algorithm>
#include <cmath>
#include <initializer_list>

#include "oberflaeche/qt/umrechnung.hpp"

namespace tonkartei {
namespace {

// A ground that is nearly black gets lighter fields, any other dark one darker fields.
constexpr double fast_schwarz = 0.025;

constexpr QRgb dunkler_Grund = 0xff20262d;

// Relative luminance, 0 to 1.
double Helligkeit(const QColor& farbe) {
    const auto anteil = [](double w) { return w <= 0.03928 ? w / 12.92 : std::pow((w + 0.055) / 1.055, 2.4); };
    return 0.2126 * anteil(farbe.redF()) + 0.7152 * anteil(farbe.greenF()) + 0.0722 * anteil(farbe.blueF());
}

QColor gemischt(const QColor& a, const QColor& b, double anteil) {
    const auto kanal = [anteil](int von, int nach) { return static_cast<int>(std::lround(von + (nach - von) * anteil)); };
    return QColor(kanal(a.red(), b.red()), kanal(a.green(), b.green()), kanal(a.blue(), b.blue()));
}

QColor abgesetzt_von_allen(QColor farbe, std::initializer_list<QColor> gründe, double kontrast) {
    for (const QColor& grund : gründe) farbe = abgesetzt(farbe, grund, kontrast);
    return farbe;
}

// Where a palette carries each tone: roles that no control overrides with a colour of its own, and entries of disabled
// and inactive controls that nothing is drawn with.
struct Platz {
    QColor Töne::*ton;
    QPalette::ColorGroup gruppe;
    QPalette::ColorRole rolle;
};
constexpr Platz Plätze[] = {
    {&Töne::Grund, QPalette::Active, QPalette::Midlight},
    {&Töne::Feld, QPalette::Active, QPalette::Light},
    {&Töne::Wert, QPalette::Active, QPalette::AlternateBase},
    {&Töne::Schrift, QPalette::Active, QPalette::ToolTipText},
    {&Töne::blass, QPalette::Active, QPalette::PlaceholderText},
    {&Töne::Zeichen, QPalette::Disabled, QPalette::ToolTipText},
    {&Töne::Akzent, QPalette::Active, QPalette::Highlight},
    {&Töne::Akzent_hell, QPalette::Disabled, QPalette::Link},
    {&Töne::Akzent_dunkel, QPalette::Active, QPalette::LinkVisited},
    {&Töne::auf_Akzent, QPalette::Active, QPalette::HighlightedText},
    {&Töne::gedrückt, QPalette::Disabled, QPalette::LinkVisited},
    {&Töne::Linie, QPalette::Active, QPalette::Mid},
    {&Töne::Linie_zart, QPalette::Disabled, QPalette::ToolTipBase},
    {&Töne::Kante, QPalette::Active, QPalette::Dark},
    {&Töne::Schatten, QPalette::Active, QPalette::Shadow},
    {&Töne::Bahn, QPalette::Inactive, QPalette::BrightText},
    {&Töne::Griff, QPalette::Inactive, QPalette::Link},
    {&Töne::Griff_betont, QPalette::Inactive, QPalette::LinkVisited},
    {&Töne::Griff_gehalten, QPalette::Disabled, QPalette::BrightText},
};

Töne auf_Hellem(const QColor& grund) {
    Töne t;
    t.Grund = grund;
    t.Schrift = abgesetzt(t.Schrift, grund);
    t.blass = abgesetzt(t.blass, grund);
    for (QColor* linie : {&t.Linie, &t.Linie_zart, &t.Kante}) *linie = abgesetzt(*linie, grund, erkennbare_Linie);
    return t;
}

// Nothing but the ends of the scale, and one hue for what is chosen.
Töne mit_viel_Kontrast(bool dunkel) {
    Töne t;
    t.Grund = t.Feld = t.Wert = t.Bahn = dunkel ? Qt::black : Qt::white;
    t.auf_Akzent = t.Grund;
    t.Schrift = t.Zeichen = t.Linie = t.Linie_zart = t.Kante = t.Schatten = dunkel ? Qt::white : Qt::black;
    t.Griff = t.Griff_betont = t.Schrift;
    t.blass = dunkel ? 0xffc8c8c8 : 0xff3c3c3c;
    t.Akzent = t.Griff_gehalten = dunkel ? 0xffffd83d : 0xff0b3f91;
    t.Akzent_dunkel = dunkel ? 0xffffe99a : 0xff072a61;
    t.Akzent_hell = dunkel ? 0xff1f3350 : 0xffdce9ff;
    t.gedrückt = dunkel ? 0xff2f4d78 : 0xffbcd4fb;
    return t;
}

Töne auf_Dunklem(const QColor& grund) {
    const QColor weiß(Qt::white), schwarz(Qt::black);
    Töne t;
    t.Grund = grund;
    t.Feld = Helligkeit(grund) < fast_schwarz ? gemischt(grund, weiß, 0.08) : gemischt(grund, schwarz, 0.45);
    t.Wert = gemischt(grund, t.Feld, 0.5);
    const auto sichtbar = [&t](const QColor& farbe, double kontrast) {
        return abgesetzt_von_allen(farbe, {t.Grund, t.Feld, t.Wert}, kontrast);
    };
    t.Schrift = sichtbar(0xffe9eef3, lesbarer_Text);
    t.blass = sichtbar(gemischt(t.Schrift, grund, 0.45), lesbarer_Text);
    t.Zeichen = sichtbar(gemischt(t.Schrift, grund, 0.2), lesbarer_Text);
    t.Akzent = sichtbar(0xff6fb1e6, lesbarer_Text);
    t.Akzent_dunkel = gemischt(t.Akzent, weiß, 0.35);
    t.auf_Akzent = 0xff10161c;
    t.Akzent_hell = getönt(t.Feld, t.Akzent, 0.18, t.Schrift);
    t.gedrückt = getönt(t.Feld, t.Akzent, 0.32, t.Schrift);
    t.Linie = sichtbar(gemischt(grund, weiß, 0.35), erkennbare_Linie + 0.4);
    t.Linie_zart = sichtbar(gemischt(grund, weiß, 0.25), erkennbare_Linie);
    t.Kante = sichtbar(gemischt(grund, weiß, 0.5), erkennbare_Linie + 1);
    t.Schatten = gemischt(grund, schwarz, 0.6);
    t.Bahn = t.Wert;
    t.Griff = t.Linie;
    t.Griff_betont = gemischt(t.Griff, weiß, 0.2);
    t.Griff_gehalten = gemischt(t.Griff, weiß, 0.4);
    return t;
}

}  // namespace

double Kontrast(const QColor& a, const QColor& b) {
    const double ha = Helligkeit(a) + 0.05, hb = Helligkeit(b) + 0.05;
    return std::max(ha, hb) / std::min(ha, hb);
}

bool ist_dunkel(const QColor& grund) { return Kontrast(grund, Qt::white) > Kontrast(grund, Qt::black); }

QColor abgesetzt(const QColor& farbe, const QColor& grund, double kontrast) {
    if (Kontrast(farbe, grund) >= kontrast) return farbe;
    const QColor ende = ist_dunkel(grund) ? Qt::white : Qt::black;
    constexpr int Schritte = 64;
    for (int i = 1; i < Schritte; ++i)
        if (const QColor versuch = gemischt(farbe, ende, i / double{Schritte}); Kontrast(versuch, grund) >= kontrast)
            return versuch;
    return ende;
}

QColor getönt(const QColor& fläche, const QColor& ton, double anteil, const QColor& schrift) {
    QColor ergebnis = fläche;
    constexpr double Schritt = 0.02;
    for (int schritte = static_cast<int>(std::lround(anteil / Schritt)); schritte > 0; --schritte) {
        ergebnis = gemischt(fläche, ton, schritte * Schritt);
        if (Kontrast(ergebnis, schrift) >= lesbarer_Text) return ergebnis;
    }
    return fläche;
}

Töne Töne::zu(const QColor& grund) { return ist_dunkel(grund) ? auf_Dunklem(grund) : auf_Hellem(grund); }

Töne Töne::im(Farbschema schema) {
    switch (schema) {
        case Farbschema::hell: break;
        case Farbschema::dunkel: return zu(QColor::fromRgb(dunkler_Grund));
        case Farbschema::kontrast_hell: return mit_viel_Kontrast(false);
        case Farbschema::kontrast_dunkel: return mit_viel_Kontrast(true);
    }
    return {};
}

Töne Töne::von(const QPalette& palette) {
    Töne t;
    for (const Platz& platz : Plätze) t.*platz.ton = palette.color(platz.gruppe, platz.rolle);
    return t;
}

QPalette Töne::Palette() const {
    QPalette p;
    p.setColor(QPalette::Window, Grund);
    p.setColor(QPalette::Base, Feld);
    p.setColor(QPalette::Button, Feld);
    p.setColor(QPalette::BrightText, Feld);
    p.setColor(QPalette::Link, Akzent);
    p.setColor(QPalette::ToolTipBase, ist_dunkel(Grund) ? gemischt(Grund, Schrift, 0.12) : QColor::fromRgb(0xfffffbe8));
    for (const Platz& platz : Plätze)
        if (platz.gruppe == QPalette::Active) p.setColor(platz.rolle, this->*platz.ton);
    for (const Platz& platz : Plätze)
        if (platz.gruppe != QPalette::Active) p.setColor(platz.gruppe, platz.rolle, this->*platz.ton);
    for (const auto rolle : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        p.setColor(rolle, Schrift);
        p.setColor(QPalette::Disabled, rolle, blass);
    }
    p.setColor(QPalette::Disabled, QPalette::Base, Wert);
    p.setColor(QPalette::Disabled, QPalette::Highlight, Linie);
    return p;
}

QPalette Farbtafel(Farbschema schema) { return Töne::im(schema).Palette(); }

QPalette Farbtafel_für(Farbe grund) { return Töne::zu(Qt_Farbe(grund)).Palette(); }

}  // namespace tonkartei
