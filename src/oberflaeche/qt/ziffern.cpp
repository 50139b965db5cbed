#include "oberflaeche/qt/ziffern.hpp"

#include <QPainter>
#include <QPolygonF>
#include <algorithm>
#include <array>
#include <cmath>

namespace tonkartei {
namespace {

// Widths for a height of 1; with the gap behind each.
constexpr double Ziffer_breit = 0.56, Doppelpunkt_breit = 0.2, Abstand = 0.12;
constexpr double halbe_Dicke = 0.055;

// Segments from the top clockwise, the middle one last; bit 0 is the top.
constexpr std::array<unsigned, 10> Muster{0x3F, 0x06, 0x5B, 0x4F, 0x66, 0x6D, 0x7D, 0x07, 0x7F, 0x6F};
constexpr unsigned Strich = 0x40;

double Breite(QChar zeichen) { return (zeichen == QLatin1Char(':') ? Doppelpunkt_breit : Ziffer_breit) + Abstand; }

double Breite(const QString& text) {
    double breite = -Abstand;
    for (const QChar zeichen : text) breite += Breite(zeichen);
    return std::max(0.0, breite);
}

// A bar with pointed ends.
QPolygonF Balken(QPointF a, QPointF b) {
    const double d = halbe_Dicke;
    if (std::abs(a.y() - b.y()) < 1e-6)
        return QPolygonF(
            {a, {a.x() + d, a.y() - d}, {b.x() - d, b.y() - d}, b, {b.x() - d, b.y() + d}, {a.x() + d, a.y() + d}});
    return QPolygonF({a, {a.x() + d, a.y() + d}, {b.x() + d, b.y() - d}, b, {b.x() - d, b.y() - d}, {a.x() - d, a.y() + d}});
}

void Ziffer(QPainter& maler, unsigned muster, const QColor& an, const QColor& aus) {
    constexpr double l = halbe_Dicke, r = Ziffer_breit - halbe_Dicke, o = halbe_Dicke, m = 0.5, u = 1 - halbe_Dicke;
    const std::array<std::pair<QPointF, QPointF>, 7> strecken{{{{l, o}, {r, o}},
                                                               {{r, o}, {r, m}},
                                                               {{r, m}, {r, u}},
                                                               {{l, u}, {r, u}},
                                                               {{l, m}, {l, u}},
                                                               {{l, o}, {l, m}},
                                                               {{l, m}, {r, m}}}};
    for (std::size_t i = 0; i < strecken.size(); ++i) {
        maler.setBrush((muster >> i & 1U) != 0 ? an : aus);
        maler.drawPolygon(Balken(strecken[i].first, strecken[i].second));
    }
}

}  // namespace

void Ziffern_malen(QPainter& maler, const QRect& platz, const QString& text, const QColor& farbe) {
    const double breite = Breite(text);
    if (breite <= 0) return;
    const double höhe = std::min<double>(platz.height(), platz.width() / breite);
    QColor aus = farbe;
    aus.setAlpha(28);
    maler.save();
    maler.setRenderHint(QPainter::Antialiasing);
    maler.setPen(Qt::NoPen);
    maler.translate(platz.center().x() - breite * höhe / 2, platz.center().y() - höhe / 2);
    maler.scale(höhe, höhe);
    for (const QChar zeichen : text) {
        if (zeichen == QLatin1Char(':')) {
            maler.setBrush(farbe);
            for (const double y : {0.3, 0.7}) maler.drawEllipse(QPointF(Doppelpunkt_breit / 2, y), 0.06, 0.06);
        } else {
            const int ziffer = zeichen.digitValue();
            const unsigned muster = ziffer >= 0                   ? Muster[static_cast<std::size_t>(ziffer)]
                                    : zeichen == QLatin1Char('-') ? Strich
                                                                  : 0;
            Ziffer(maler, muster, farbe, aus);
        }
        maler.translate(Breite(zeichen), 0);
    }
    maler.restore();
}

QSize Zifferngröße(const QString& text, int höhe) { return {static_cast<int>(std::ceil(Breite(text) * höhe)), höhe}; }

}  // namespace tonkartei
