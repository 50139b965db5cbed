// Sliders and scroll bars.
#include <QProxyStyle>
#include <QWidget>
#include <algorithm>
#include <cmath>

#include "oberflaeche/qt/farben.hpp"
#include "oberflaeche/qt/schieberbild.hpp"
#include "oberflaeche/qt/stil_teile.hpp"

namespace tonkartei {

void Winkel_malen(QPainter& maler, const QRectF& platz, int richtung, const QColor& farbe) {
    const Sicherung sicherung(maler);
    maler.setPen(QPen(farbe, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    maler.setBrush(Qt::NoBrush);
    maler.translate(platz.center());
    maler.rotate(90 * richtung);
    maler.drawPolyline(QPolygonF({{-3.2, -1.6}, {0, 1.8}, {3.2, -1.6}}));
}

namespace {

// The cap of a mixing desk's slider, with a line across its middle.
void Kappe_malen(QPainter& maler, const QRectF& griff, bool liegend, const Töne& ton, bool aktiv, bool betont) {
    const QColor fläche = !aktiv ? ton.Grund : betont ? ton.Griff_betont : ton.Griff;
    maler.setPen(Qt::NoPen);
    maler.setBrush(fläche);
    maler.drawRoundedRect(griff.adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    maler.setBrush(Qt::NoBrush);
    maler.setPen(QPen(!aktiv ? ton.Linie : betont ? ton.Akzent : ton.Kante, betont ? 2 : 1));
    maler.drawRoundedRect(griff.adjusted(1, 1, -1, -1), 3, 3);
    maler.setPen(QPen(aktiv ? abgesetzt(ton.Schrift, fläche) : ton.Linie, 2));
    const QPointF halb = liegend ? QPointF(0, griff.height() / 2 - 4) : QPointF(griff.width() / 2 - 4, 0);
    maler.drawLine(QLineF(griff.center() - halb, griff.center() + halb));
}

void Marken_malen(QPainter& maler, const QRectF& rinne, const QRectF& griff, bool liegend, const QColor& farbe) {
    constexpr int Anzahl = 10;
    maler.setPen(farbe);
    const double anfang = liegend ? griff.width() / 2 : griff.height() / 2;
    const double weg = (liegend ? rinne.width() : rinne.height()) - 2 * anfang;
    const double weit = (liegend ? griff.height() : griff.width()) / 2;
    for (int i = 0; i <= Anzahl; ++i) {
        const double längs = std::floor(anfang + weg * i / Anzahl) + 0.5;
        const double nah = i % (Anzahl / 2) == 0 ? 0.45 : 0.6;
        for (const int seite : {-1, 1}) {
            const QPointF von = liegend ? QPointF(rinne.left() + längs, rinne.center().y() + seite * nah * weit)
                                        : QPointF(rinne.center().x() + seite * nah * weit, rinne.top() + längs);
            const QPointF bis = liegend ? QPointF(von.x(), rinne.center().y() + seite * weit)
                                        : QPointF(rinne.center().x() + seite * weit, von.y());
            maler.drawLine(QLineF(von, bis));
        }
    }
}

}  // namespace

void Schieber_malen(const QProxyStyle& stil, const QStyleOptionSlider& option, QPainter& maler, const QWidget* widget) {
    const bool aktiv = hat(option, QStyle::State_Enabled);
    const auto* bild = dynamic_cast<const Schieberbild*>(widget);
    const bool griffig = bild != nullptr && bild->griffig;
    const bool liegend = option.orientation == Qt::Horizontal;
    const Töne ton = Töne::von(option.palette);
    const QRectF rinne(stil.subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, widget));
    const QRectF griff(stil.subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, widget));
    const Sicherung sicherung(maler);
    if (griffig) Marken_malen(maler, rinne, griff, liegend, aktiv ? ton.Kante : ton.Linie);
    maler.setPen(Qt::NoPen);
    const double dick = griffig ? 8 : 4;
    QRectF bahn, gefüllt;
    if (liegend) {
        bahn = QRectF(rinne.left() + 1, rinne.center().y() - dick / 2, rinne.width() - 2, dick);
        gefüllt = bahn;
        if (option.upsideDown)
            gefüllt.setLeft(griff.center().x());
        else
            gefüllt.setRight(griff.center().x());
    } else {
        bahn = QRectF(rinne.center().x() - dick / 2, rinne.top() + 1, dick, rinne.height() - 2);
        gefüllt = bahn;
        if (option.upsideDown)
            gefüllt.setTop(griff.center().y());
        else
            gefüllt.setBottom(griff.center().y());
    }
    const bool eigene_Rinne = bild != nullptr && bild->rinne.isValid();
    const bool eigene_Füllung = bild != nullptr && bild->füllung.isValid();
    if (eigene_Rinne || griffig) maler.setPen(ton.Linie);  // it may be the colour of the ground
    maler.setBrush(eigene_Rinne ? bild->rinne : griffig ? ton.Feld : ton.Linie);
    maler.drawRoundedRect(bahn, dick / 2, dick / 2);
    maler.setPen(Qt::NoPen);
    // On a mixing desk neither end is the beginning.
    if (!griffig || eigene_Füllung) {
        maler.setBrush(!aktiv ? ton.blass : eigene_Füllung ? bild->füllung : ton.Akzent);
        maler.drawRoundedRect(gefüllt, dick / 2, dick / 2);
    }
    const bool betont = aktiv && (hat(option, QStyle::State_HasFocus) || hat(option, QStyle::State_MouseOver) ||
                                  option.activeSubControls.testFlag(QStyle::SC_SliderHandle));
    if (griffig) return Kappe_malen(maler, griff, liegend, ton, aktiv, betont);
    const double halb = std::min(griff.width(), griff.height()) / 2 - 1;
    maler.setPen(QPen(!aktiv ? ton.Linie : ton.Akzent, betont ? 2 : 1.3));
    maler.setBrush(hat(option, QStyle::State_Sunken) && aktiv ? ton.gedrückt : ton.Feld);
    maler.drawEllipse(griff.center(), halb, halb);
}

void Bildlauf_malen(const QProxyStyle& stil, const QStyleOptionSlider& option, QPainter& maler, const QWidget* widget) {
    const bool liegend = option.orientation == Qt::Horizontal;
    const bool beweglich = option.maximum > option.minimum && hat(option, QStyle::State_Enabled);
    const bool eigener_Grund = widget != nullptr && widget->autoFillBackground();
    const Töne ton = Töne::von(option.palette);
    maler.fillRect(option.rect, eigener_Grund ? option.palette.color(QPalette::Window) : ton.Bahn);
    const auto teil = [&](QStyle::SubControl was) {
        return QRectF(stil.subControlRect(QStyle::CC_ScrollBar, &option, was, widget));
    };
    const QColor zeichen = beweglich ? ton.Zeichen : ton.Linie;
    Winkel_malen(maler, teil(QStyle::SC_ScrollBarSubLine), liegend ? 1 : 2, zeichen);
    Winkel_malen(maler, teil(QStyle::SC_ScrollBarAddLine), liegend ? 3 : 0, zeichen);
    if (!beweglich) return;
    const bool griff = option.activeSubControls.testFlag(QStyle::SC_ScrollBarSlider);
    const QColor farbe = !griff ? ton.Griff : hat(option, QStyle::State_Sunken) ? ton.Griff_gehalten : ton.Griff_betont;
    const QRectF schieber =
        teil(QStyle::SC_ScrollBarSlider).adjusted(liegend ? 0 : 3, liegend ? 3 : 0, liegend ? 0 : -3, liegend ? -3 : 0);
    const double rundung = std::min(schieber.width(), schieber.height()) / 2;
    const Sicherung sicherung(maler);
    maler.setPen(Qt::NoPen);
    maler.setBrush(farbe);
    maler.drawRoundedRect(schieber, rundung, rundung);
}

}  // namespace tonkartei
