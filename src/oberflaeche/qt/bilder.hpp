// The program's pictures, drawn: sharp at any size and scale.
#pragma once

#include <QIcon>
#include <QRectF>

#include "grundlagen/text.hpp"

class QPainter;
class QColor;

namespace tonkartei {

// The drawer of index cards, the program's sign.
QIcon Programmsymbol();

// Draws the picture of that name into the area, pictograms in the given colour; false when there is none of that name.
// "symbol", and the pictograms "play", "pause", "stop", "vor", "zurück", "zufall", "liste", "plus", "kopieren", "löschen",
// "griff", "lautsprecher", "suchen", "auf", "ab", "pfeil"; "auskunft" and "frage" for boxes.
bool Bild_malen(QPainter& maler, const QRectF& platz, const Text& name, const QColor& farbe);

// A picture as an icon of the pixels of all usual scales; null without one of that name.
QIcon Bildsymbol(const Text& name, const QColor& farbe, const QColor& blass);

}  // namespace tonkartei
