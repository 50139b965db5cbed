// Slider with colours of its own and, on wish, a broad grip.
#pragma once

#include <QColor>
#include <QSlider>

namespace tonkartei {

class Schieberbild : public QSlider {
public:
    using QSlider::QSlider;
    // A broad cap in a wide groove with marks; a press into the groove brings it there at once.
    bool griffig = false;
    // Of the groove, and of its part from the least value to the grip; invalid: the usual ones.
    QColor rinne, füllung;

    // Of the cap: along the groove and across it.
    static QSize Griffgröße(const QFontMetrics& maße);
    // The least that a slider with such a grip needs, pixels.
    static QSize Mindestmaß(Qt::Orientation richtung, const QFontMetrics& maße);
    QRect Griff(const QStyleOptionSlider& option) const;

protected:
    void mousePressEvent(QMouseEvent* was) override;
};

}  // namespace tonkartei
