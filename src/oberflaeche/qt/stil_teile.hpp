// What the drawing of the style's parts shares.
#pragma once

#include <QPainter>
#include <QStyleOption>

class QProxyStyle;

namespace tonkartei {

inline bool hat(const QStyleOption& option, QStyle::StateFlag flagge) { return option.state.testFlag(flagge); }

struct Sicherung {
    QPainter& maler;
    explicit Sicherung(QPainter& m) : maler(m) {
        maler.save();
        maler.setRenderHint(QPainter::Antialiasing);
    }
    ~Sicherung() { maler.restore(); }
    Sicherung(const Sicherung&) = delete;
    Sicherung& operator=(const Sicherung&) = delete;
};

// An angle in the middle of the area: 0 points down, 1 left, 2 up, 3 right.
void Winkel_malen(QPainter& maler, const QRectF& platz, int richtung, const QColor& farbe);

void Schieber_malen(const QProxyStyle& stil, const QStyleOptionSlider& option, QPainter& maler, const QWidget* widget);
void Bildlauf_malen(const QProxyStyle& stil, const QStyleOptionSlider& option, QPainter& maler, const QWidget* widget);

}  // namespace tonkartei
