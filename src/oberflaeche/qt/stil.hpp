// The look: light, calm, one accent colour; the same on a screen and without one. Also the fonts by the model's points, of
// which 10 mean the application's own size.
#pragma once

#include <QColor>
#include <QFont>
#include <QProxyStyle>

class QRectF;

namespace tonkartei {

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
    QRect subControlRect(ComplexControl was, const QStyleOptionComplex* option, SubControl teil,
                         const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap was, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint was, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* zurück) const override;
};

// A rounded panel with a line one pixel wide around it.
void Tafel_malen(QPainter& maler, const QRectF& platz, const QColor& füllung, const QColor& linie, double rundung = 4);

QFont Schrift(int punkte, bool fett = false);

}  // namespace tonkartei
