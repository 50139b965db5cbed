#include "oberflaeche/qt/schieberbild.hpp"

#include <QFontMetrics>
#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionSlider>

namespace tonkartei {

namespace {

constexpr int kürzester_Weg = 120;  // pixels

}  // namespace

QSize Schieberbild::Griffgröße(const QFontMetrics& maße) { return {maße.height() * 9 / 8, maße.height() * 15 / 8}; }

QSize Schieberbild::Mindestmaß(Qt::Orientation richtung, const QFontMetrics& maße) {
    const QSize liegend(kürzester_Weg, Griffgröße(maße).height() + 4);
    return richtung == Qt::Horizontal ? liegend : liegend.transposed();
}

QRect Schieberbild::Griff(const QStyleOptionSlider& option) const {
    const QSize griff = Griffgröße(fontMetrics());
    const bool liegend = option.orientation == Qt::Horizontal;
    const QSize größe = liegend ? griff : griff.transposed();
    const int weg = liegend ? option.rect.width() - größe.width() : option.rect.height() - größe.height();
    const int stelle =
        QStyle::sliderPositionFromValue(option.minimum, option.maximum, option.sliderPosition, weg, option.upsideDown);
    QRect platz(option.rect.topLeft(), größe);
    if (liegend)
        platz.translate(stelle, (option.rect.height() - größe.height()) / 2);
    else
        platz.translate((option.rect.width() - größe.width()) / 2, stelle);
    return platz;
}

void Schieberbild::mousePressEvent(QMouseEvent* was) {
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRect griff = Griff(option);
    const QPoint maus = was->position().toPoint();
    if (griffig && was->button() == Qt::LeftButton && !griff.contains(maus)) {
        const bool liegend = orientation() == Qt::Horizontal;
        const int länge = liegend ? griff.width() : griff.height();
        const int stelle = (liegend ? maus.x() : maus.y()) - länge / 2;
        const int weg = (liegend ? width() : height()) - länge;
        setSliderPosition(QStyle::sliderValueFromPosition(minimum(), maximum(), stelle, weg, option.upsideDown));
        // What comes of it is drawn along like the grip itself, unless the value was put back at once.
        initStyleOption(&option);
        if (!Griff(option).contains(maus)) return;
    }
    QSlider::mousePressEvent(was);
}

}  // namespace tonkartei
