// The look: light, calm, one accent colour; the same on a screen and without one. Also the fonts by the model's points, of
// which 10 mean the application's own size.
#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QProxyStyle>

class QRectF;

namespace tonkartei {

namespace Ton {
inline constexpr QRgb Grund = 0xfff3f5f8, Feld = 0xffffffff, Schrift = 0xff1d2733, blass = 0xff98a3af, Akzent = 0xff2f6f9f,
                      Akzent_hell = 0xffe6f0f7, Akzent_dunkel = 0xff245a83, Linie = 0xffc5cdd6, Linie_zart = 0xffd9dfe6,
                      gedrückt = 0xffd7e5ef, Wert = 0xfffafbfc;
}

class Stil : public QProxyStyle {
public:
    Stil();
    void drawPrimitive(PrimitiveElement was, const QStyleOption* option, QPainter* maler,
                       const QWidget* widget) const override;
    void drawControl(ControlElement was, const QStyleOption* option, QPainter* maler, const QWidget* widget) const override;
    void drawComplexControl(ComplexControl was, const QStyleOptionComplex* option, QPainter* maler,
                            const QWidget* widget) const override;
    int pixelMetric(PixelMetric was, const QStyleOption* option, const QWidget* widget) const override;
    QRect subElementRect(SubElement was, const QStyleOption* option, const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap was, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint was, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* zurück) const override;
};

// A rounded panel with a line one pixel wide around it.
void Tafel_malen(QPainter& maler, const QRectF& platz, const QColor& füllung, const QColor& linie, double rundung = 4);

QPalette Farbtafel();
QFont Schrift(int punkte, bool fett = false);

}  // namespace tonkartei
