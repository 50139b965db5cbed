// Digits of a clock, of seven segments each.
#pragma once

#include <QColor>
#include <QFontMetrics>
#include <QRectF>
#include <QSize>
#include <QString>

class QPainter;

namespace tonkartei {

// At the height of the font.
QSize Zifferngröße(const QString& text, const QFontMetrics& maße);
// As large as fits; what is neither digit, blank, "-" nor ":" is written in the font. Segments that are out can be made out.
void Ziffern_malen(QPainter& maler, const QRectF& platz, const QString& text, const QColor& farbe, Qt::Alignment lage);

}  // namespace tonkartei
