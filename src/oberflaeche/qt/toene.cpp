#include "oberflaeche/qt/toene.hpp"

#include <QWidget>
#include <algorithm>
#include <cmath>

#include "oberflaeche/qt/widgets.hpp"

namespace tonkartei {
namespace {

QColor gemischt(const QColor& a, const QColor& b, double anteil) {
    const auto mischen = [anteil](int x, int y) { return static_cast<int>(std::lround(x + (y - x) * anteil)); };
    return {mischen(a.red(), b.red()), mischen(a.green(), b.green()), mischen(a.blue(), b.blue())};
}

double Helligkeit(const QColor& f) {
    const auto anteil = [](double w) { return w <= 0.03928 ? w / 12.92 : std::pow((w + 0.055) / 1.055, 2.4); };
    return 0.2126 * anteil(f.redF()) + 0.7152 * anteil(f.greenF()) + 0.0722 * anteil(f.blueF());
}

// As little of `wohin` as gives that contrast; all of it where nothing does.
QColor mit_Kontrast(const QColor& farbe, const QColor& wohin, const QColor& grund, double kontrast) {
    for (int zwanzigstel = 0; zwanzigstel < 20; ++zwanzigstel)
        if (const QColor f = gemischt(farbe, wohin, zwanzigstel / 20.0); Kontrast(f, grund) >= kontrast) return f;
    return wohin;
}

// What lies below a widget's text: the nearest frame with a colour of its own, else the window.
QColor Grund_unter(const QWidget& widget) {
    for (const QWidget* w = widget.parentWidget(); w != nullptr && !w->isWindow(); w = w->parentWidget())
        if (const auto* rahmen = qobject_cast<const QGroupBox*>(w))
            if (const auto* bild = dynamic_cast<const Rahmenbild*>(rahmen); bild != nullptr && bild->füllung.isValid())
                return bild->füllung;
    return widget.palette().color(QPalette::Midlight);
}

}  // namespace

double Kontrast(const QColor& a, const QColor& b) {
    const double ha = Helligkeit(a) + 0.05, hb = Helligkeit(b) + 0.05;
    return std::max(ha, hb) / std::min(ha, hb);
}

QColor lesbar(const QColor& farbe, const QColor& grund) {
    return mit_Kontrast(farbe, Helligkeit(grund) < 0.18 ? Qt::white : Qt::black, grund, Kontrast_Text);
}

QColor lesbar_auf(const QWidget& widget, const QColor& farbe) {
    if (!Töne::von(widget.palette()).dunkel) return farbe;
    return lesbar(farbe, Grund_unter(widget));
}

Töne Töne::hell() {
    Töne t;
    t.Grund = 0xf3f5f8, t.Feld = 0xffffff, t.Schrift = 0x1d2733, t.blass = 0x98a3af;
    t.Akzent = 0x2f6f9f, t.Akzent_hell = 0xe6f0f7, t.Akzent_dunkel = 0x245a83;
    t.Linie = 0xc5cdd6, t.Linie_zart = 0xd9dfe6, t.gedrückt = 0xd7e5ef, t.Wert = 0xfafbfc;
    t.Zeichen = 0x55626f, t.Kante = 0x9aa6b3, t.Rinne = 0xeef1f4;
    t.Griff = 0xb9c3cd, t.Griff_betont = 0x9eabb8, t.Griff_unten = 0x7d8b99;
    t.Haken = 0xffffff;
    return t;
}

Töne Töne::für(const QColor& grund) {
    if (grund.lightness() >= 128) return hell();
    const QColor weiß(Qt::white), schwarz(Qt::black);
    Töne t;
    t.dunkel = true;
    t.Grund = grund;
    t.Feld = gemischt(grund, schwarz, 0.45);
    t.Wert = gemischt(grund, schwarz, 0.2);
    t.Schrift = gemischt(grund, weiß, 0.92);
    t.blass = gemischt(grund, weiß, 0.45);
    t.Akzent = mit_Kontrast(QColor(0x4f9fd8), weiß, grund, Kontrast_Text);
    t.Akzent_hell = gemischt(grund, weiß, 0.2);
    t.Akzent_dunkel = gemischt(t.Akzent, weiß, 0.3);
    t.Linie = mit_Kontrast(grund, weiß, grund, 3);
    t.Linie_zart = gemischt(grund, weiß, 0.3);
    t.gedrückt = gemischt(grund, weiß, 0.3);
    t.Zeichen = gemischt(grund, weiß, 0.8);
    t.Kante = t.Linie;
    t.Rinne = gemischt(grund, schwarz, 0.3);
    t.Griff = gemischt(grund, weiß, 0.4);
    t.Griff_betont = gemischt(grund, weiß, 0.55);
    t.Griff_unten = gemischt(grund, weiß, 0.7);
    t.Haken = gemischt(grund, schwarz, 0.7);
    return t;
}

Töne Töne::von(const QPalette& palette) { return für(palette.color(QPalette::Midlight)); }

QPalette Farbtafel(const Töne& t) {
    QPalette p;
    const QColor knopf = t.dunkel ? gemischt(t.Grund, Qt::white, 0.1) : t.Feld;
    const std::pair<QPalette::ColorRole, QColor> rollen[] = {
        {QPalette::Window, t.Grund},       {QPalette::WindowText, t.Schrift},
        {QPalette::Base, t.Feld},          {QPalette::AlternateBase, t.Wert},
        {QPalette::Text, t.Schrift},       {QPalette::PlaceholderText, t.blass},
        {QPalette::Button, knopf},         {QPalette::ButtonText, t.Schrift},
        {QPalette::BrightText, t.Feld},    {QPalette::Light, t.Feld},
        {QPalette::Midlight, t.Grund},     {QPalette::Mid, t.Linie},
        {QPalette::Dark, t.Kante},         {QPalette::Shadow, t.dunkel ? t.Linie_zart : QColor(0x6b7783)},
        {QPalette::Highlight, t.Akzent},   {QPalette::HighlightedText, t.dunkel ? t.Haken : t.Feld},
        {QPalette::Link, t.Akzent},        {QPalette::LinkVisited, t.Akzent_dunkel},
        {QPalette::ToolTipBase, 0xfffbe8}, {QPalette::ToolTipText, Töne::hell().Schrift},
    };
    for (const auto& [rolle, farbe] : rollen) p.setColor(rolle, farbe);
    for (const auto rolle : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        p.setColor(QPalette::Disabled, rolle, t.blass);
    p.setColor(QPalette::Disabled, QPalette::Base, t.Wert);
    p.setColor(QPalette::Disabled, QPalette::Highlight, t.Linie);
    return p;
}

}  // namespace tonkartei
