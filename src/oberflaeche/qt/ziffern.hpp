// Digits of a clock, of seven segments each; those that are not lit shine through faintly.
#pragma once

#include <QColor>
#include <QRect>
#include <QSize>
#include <QString>

class QPainter;

namespace tonkartei {

// As large as fits. Digits, "-", ":" and blanks; anything else is left blank.
void Ziffern_malen(QPainter& maler, const QRect& platz, const QString& text, const QColor& farbe);
QSize Zifferngröße(const QString& text, int höhe);

}  // namespace tonkartei
