#include "oberflaeche/qt/ziffern.hpp"

#include <QFont>
#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>

namespace tonkartei {
namespace {

// Parts of the height.
constexpr double breit = 0.6, schmal = 0.3, Lücke = 0.12, dick = 0.11, Spalt = 0.015;
constexpr int erloschen = 26;  // opacity of 255

// Bits: top, upper right, lower right, bottom, lower left, upper left, middle.
constexpr std::array<unsigned, 10> Segmente{0x3f, 0x06, 0x5b, 0x4f, 0x66, 0x6d, 0x7d, 0x07, 0x7f, 0x6f};
constexpr unsigned Mitte = 0x40;

bool ist_Ziffer(QChar z) { return z >= QLatin1Char('0') && z <= QLatin1Char('9'); }
bool aus_Segmenten(QChar z) { return ist_Ziffer(z) || z == QLatin1Char('-') || z == QLatin1Char(' '); }

double Breite(QChar z, const QFontMetricsF& maße, double höhe) {
    if (aus_Segmenten(z)) return breit * höhe;
    if (z == QLatin1Char(':')) return schmal * höhe;
    return maße.horizontalAdvance(z) * höhe / maße.height();
}

double Breite(const QString& text, const QFontMetricsF& maße, double höhe) {
    double summe = text.isEmpty() ? 0 : Lücke * höhe * static_cast<double>(text.size() - 1);
    for (const QChar z : text) summe += Breite(z, maße, höhe);
    return summe;
}

// A beam between two corners of the digit, with pointed ends.
QPolygonF Balken(QPointF von, QPointF bis, double höhe) {
    const double halb = dick * höhe / 2;
    const QPointF längs = (bis - von) / std::hypot(bis.x() - von.x(), bis.y() - von.y());
    const QPointF quer(-längs.y() * halb, längs.x() * halb);
    von += längs * Spalt * höhe;
    bis -= längs * Spalt * höhe;
    return QPolygonF({von, von + längs * halb + quer, bis - längs * halb + quer, bis, bis - längs * halb - quer,
                      von + längs * halb - quer});
}

void Ziffer_malen(QPainter& maler, const QRectF& platz, unsigned an, const QColor& farbe) {
    const double höhe = platz.height(), rand = dick * höhe / 2;
    const QRectF r = platz.adjusted(rand, rand, -rand, -rand);
    const QPointF ml(r.left(), r.center().y()), mr(r.right(), r.center().y());
    const std::array<std::pair<QPointF, QPointF>, 7> strecken{{{r.topLeft(), r.topRight()},
                                                               {r.topRight(), mr},
                                                               {mr, r.bottomRight()},
                                                               {r.bottomLeft(), r.bottomRight()},
                                                               {ml, r.bottomLeft()},
                                                               {r.topLeft(), ml},
                                                               {ml, mr}}};
    QColor aus = farbe;
    aus.setAlpha(erloschen);
    for (std::size_t i = 0; i < strecken.size(); ++i) {
        maler.setBrush((an >> i & 1U) != 0 ? farbe : aus);
        maler.drawPolygon(Balken(strecken[i].first, strecken[i].second, höhe));
    }
}

}  // namespace

QSize Zifferngröße(const QString& text, const QFontMetrics& maße) {
    const double höhe = maße.height();
    return {static_cast<int>(std::ceil(Breite(text, QFontMetricsF(maße), höhe))) + 2, maße.height() + 2};
}

void Ziffern_malen(QPainter& maler, const QRectF& platz, const QString& text, const QColor& farbe, Qt::Alignment lage) {
    if (text.isEmpty()) return;
    const QFontMetricsF maße(maler.font());
    const double höhe = std::min(platz.height() - 2, (platz.width() - 2) / Breite(text, maße, 1));
    if (höhe < 1) return;
    const double frei = platz.width() - 2 - Breite(text, maße, höhe);
    double x = platz.left() + 1;
    if (lage.testFlag(Qt::AlignRight))
        x += frei;
    else if (lage.testFlag(Qt::AlignHCenter))
        x += frei / 2;
    const double oben = platz.center().y() - höhe / 2;
    maler.save();
    maler.setRenderHint(QPainter::Antialiasing);
    QFont schrift = maler.font();
    schrift.setPixelSize(std::max(1, static_cast<int>(maler.fontInfo().pixelSize() * höhe / maße.height())));
    maler.setFont(schrift);
    for (const QChar z : text) {
        const QRectF feld(x, oben, Breite(z, maße, höhe), höhe);
        maler.setPen(Qt::NoPen);
        maler.setBrush(farbe);
        if (aus_Segmenten(z)) {
            Ziffer_malen(maler, feld,
                         ist_Ziffer(z)           ? Segmente.at(static_cast<std::size_t>(z.digitValue()))
                         : z == QLatin1Char('-') ? Mitte
                                                 : 0U,
                         farbe);
        } else if (z == QLatin1Char(':')) {
            const double punkt = dick * höhe * 0.65;
            for (const double y : {0.32, 0.68}) maler.drawEllipse(QPointF(feld.center().x(), oben + y * höhe), punkt, punkt);
        } else {
            maler.setPen(farbe);
            maler.drawText(feld.adjusted(-2, 0, 2, 0), Qt::AlignCenter, QString(z));
        }
        x += feld.width() + Lücke * höhe;
    }
    maler.restore();
}

}  // namespace tonkartei
