// Between the model's texts, twips and colours and Qt's.
#pragma once

#include <QColor>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>
#include <cmath>

#include "grundlagen/text.hpp"
#include "oberflaeche/element.hpp"
#include "oberflaeche/farbe.hpp"
#include "oberflaeche/geometrie.hpp"

namespace tonkartei {

// Logical pixels.
inline int Pixel(int twips) { return static_cast<int>(std::lround(twips / static_cast<double>(Twips_je_Pixel))); }
inline int Twips(int pixel) { return pixel * Twips_je_Pixel; }

// Edges are rounded, not widths: what touches in the model touches on the screen.
inline QRect Pixel(const Bereich& b) {
    const QPoint links_oben(Pixel(b.links), Pixel(b.oben));
    return QRect(links_oben, QSize(Pixel(b.links + b.breite) - links_oben.x(), Pixel(b.oben + b.höhe) - links_oben.y()));
}

inline QString Anzeigetext(const Text& text) { return QString::fromStdString(anzeigbar(text)); }

// A caption as Qt reads it, where "&" marks the access key.
inline QString Beschriftungstext(const Element& element) {
    return Anzeigetext(element.Beschriftung_wörtlich ? und_verdoppelt(element.beschriftung()) : element.beschriftung());
}

// CR, CR LF and LF alike end a line.
inline QString Anzeigeabsätze(const Text& text) {
    QString s = Anzeigetext(text);
    s.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    s.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return s;
}

inline Text aus_Qt(const QString& text) { return text.toStdString(); }

inline QColor Qt_Farbe(Farbe farbe) { return QColor(farbe & 255, (farbe >> 8) & 255, (farbe >> 16) & 255); }

}  // namespace tonkartei
