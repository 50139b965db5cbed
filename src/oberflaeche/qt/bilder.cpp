#include "oberflaeche/qt/bilder.hpp"

#include <QColor>
#include <QIconEngine>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QPolygonF>
#include <algorithm>
#include <array>
#include <cstdint>
#include <functional>
#include <map>

namespace tonkartei {
namespace {

QLinearGradient Verlauf(double von, double bis, QColor oben, QColor unten) {
    QLinearGradient verlauf(0, von, 0, bis);
    verlauf.setColorAt(0, oben);
    verlauf.setColorAt(1, unten);
    return verlauf;
}

// A card with its tab: left edge, top, where the tab begins and how wide it is, width, height.
QPainterPath Karte(double x, double y, double reiter, double reiterbreite, double breite, double höhe) {
    QPainterPath pfad(QPointF(x, y));
    pfad.lineTo(x + reiter, y);
    pfad.lineTo(x + reiter + 6, y - 12);
    pfad.lineTo(x + reiter + 6 + reiterbreite, y - 12);
    pfad.lineTo(x + reiter + 12 + reiterbreite, y);
    pfad.lineTo(x + breite, y);
    pfad.lineTo(x + breite, y + höhe);
    pfad.lineTo(x, y + höhe);
    pfad.closeSubpath();
    return pfad;
}

void Notenkopf(QPainter& maler, double x, double y) {
    maler.save();
    maler.translate(x, y);
    maler.rotate(-20);
    maler.drawEllipse(QPointF(0, 0), 13, 9.5);
    maler.restore();
}

// On a ground of 256 x 256.
void Karteikasten(QPainter& maler) {
    maler.setPen(Qt::NoPen);
    maler.setBrush(QColor(0x5b3716));
    maler.drawPolygon(QPolygonF({{40, 116}, {216, 116}, {232, 150}, {24, 150}}));

    maler.setPen(QPen(QColor(0x8d7a55), 3, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    maler.setBrush(QColor(0xd9c9a0));
    maler.drawPath(Karte(56, 40, 24, 40, 144, 110));
    maler.setBrush(QColor(0xa8cbd6));
    maler.drawPath(Karte(50, 56, 78, 40, 156, 100));
    maler.setBrush(Verlauf(60, 162, QColor(0xfffdf4), QColor(0xf1e8cf)));
    maler.drawPath(Karte(44, 72, 16, 44, 168, 90));

    maler.setPen(Qt::NoPen);
    maler.setBrush(QColor(0x1f3a5f));
    Notenkopf(maler, 104, 133);
    Notenkopf(maler, 152, 125);
    maler.drawPolygon(QPolygonF(
        {{110.5, 130}, {110.5, 85}, {164.5, 76}, {164.5, 122}, {158.5, 122}, {158.5, 92}, {116.5, 99}, {116.5, 130}}));

    maler.setPen(QPen(QColor(0x6b4018), 4));
    maler.setBrush(Verlauf(150, 234, QColor(0xc98f4e), QColor(0x9a5f28)));
    maler.drawRoundedRect(QRectF(16, 150, 224, 84), 9, 9);
    maler.setPen(QPen(QColor(0x7d4d1f), 3));
    maler.setBrush(Qt::NoBrush);
    maler.drawRoundedRect(QRectF(28, 162, 200, 60), 5, 5);

    maler.setPen(QPen(Verlauf(167, 199, QColor(0xf4dc92), QColor(0xb98c2f)), 6));
    maler.setBrush(QColor(0xfffdf4));
    maler.drawRoundedRect(QRectF(86, 170, 84, 26), 3, 3);
    maler.setPen(QPen(QColor(0x8d7a55), 3, Qt::SolidLine, Qt::RoundCap));
    maler.drawLine(QPointF(98, 180), QPointF(158, 180));
    maler.drawLine(QPointF(98, 187), QPointF(136, 187));
    maler.setPen(QPen(Verlauf(205, 219, QColor(0xf4dc92), QColor(0xb98c2f)), 8, Qt::SolidLine, Qt::RoundCap));
    maler.setBrush(Qt::NoBrush);
    QPainterPath griff(QPointF(104, 205));
    griff.quadTo(128, 225, 152, 205);
    maler.drawPath(griff);
}

// Pictograms on a ground of 16 x 16, with brush and pen set to the colour.
using Zeichner = std::function<void(QPainter&)>;

void Dreieck(QPainter& m, double x1, double y1, double x2, double y2, double x3, double y3) {
    m.drawPolygon(QPolygonF({{x1, y1}, {x2, y2}, {x3, y3}}));
}

void Linien(QPainter& m, std::initializer_list<std::array<double, 4>> linien) {
    for (const auto& l : linien) m.drawLine(QPointF(l[0], l[1]), QPointF(l[2], l[3]));
}

// A disc in the colour, on which white is drawn.
void Scheibe(QPainter& m) {
    const QPen stift = m.pen();
    m.setPen(Qt::NoPen);
    m.drawEllipse(QPointF(8, 8), 7, 7);
    m.setPen(QPen(Qt::white, stift.widthF() * 0.85, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    m.setBrush(Qt::white);
}

const std::map<Text, Zeichner>& Piktogramme() {
    static const std::map<Text, Zeichner> alle = {
        {"play", [](QPainter& m) { Dreieck(m, 4.5, 3, 4.5, 13, 13, 8); }},
        {"pause",
         [](QPainter& m) {
             m.drawRect(QRectF(4, 3, 2.5, 10));
             m.drawRect(QRectF(9.5, 3, 2.5, 10));
         }},
        {"stop", [](QPainter& m) { m.drawRect(QRectF(3.75, 3.75, 8.5, 8.5)); }},
        {"vor",
         [](QPainter& m) {
             Dreieck(m, 2.5, 3.5, 2.5, 12.5, 8, 8);
             Dreieck(m, 8, 3.5, 8, 12.5, 13.5, 8);
         }},
        {"zurück",
         [](QPainter& m) {
             Dreieck(m, 13.5, 3.5, 13.5, 12.5, 8, 8);
             Dreieck(m, 8, 3.5, 8, 12.5, 2.5, 8);
         }},
        {"zufall",
         [](QPainter& m) {
             Linien(m, {{2, 4.5, 4.5, 4.5}, {4.5, 4.5, 9, 11.5}, {9, 11.5, 12, 11.5}});
             Linien(m, {{2, 11.5, 4.5, 11.5}, {4.5, 11.5, 9, 4.5}, {9, 4.5, 12, 4.5}});
             Dreieck(m, 11.5, 2.5, 11.5, 6.5, 14, 4.5);
             Dreieck(m, 11.5, 9.5, 11.5, 13.5, 14, 11.5);
         }},
        {"liste",
         [](QPainter& m) {
             Linien(m, {{3, 4, 13, 4}, {3, 8, 13, 8}, {3, 12, 13, 12}});
         }},
        {"plus",
         [](QPainter& m) {
             Linien(m, {{8, 3, 8, 13}, {3, 8, 13, 8}});
         }},
        {"kopieren",
         [](QPainter& m) {
             m.setBrush(Qt::NoBrush);
             m.drawRect(QRectF(2.5, 2.5, 7.5, 8.5));
             Linien(m, {{6, 13.5, 13.5, 13.5}, {13.5, 13.5, 13.5, 5}});
         }},
        {"löschen",
         [](QPainter& m) {
             Linien(m, {{4, 4, 12, 12}, {12, 4, 4, 12}});
         }},
        {"speichern",
         [](QPainter& m) {
             Linien(m, {{8, 2.5, 8, 9.5}, {8, 9.5, 5, 6.5}, {8, 9.5, 11, 6.5}});
             Linien(m, {{3, 10, 3, 13}, {3, 13, 13, 13}, {13, 13, 13, 10}});
         }},
        {"öffnen",
         [](QPainter& m) {
             Linien(m, {{8, 10, 8, 3}, {8, 3, 5, 6}, {8, 3, 11, 6}});
             Linien(m, {{3, 10, 3, 13}, {3, 13, 13, 13}, {13, 13, 13, 10}});
         }},
        {"griff",
         [](QPainter& m) {
             Linien(m, {{9.5, 3.5, 5, 8}, {5, 8, 9.5, 12.5}});
         }},
        {"lautsprecher",
         [](QPainter& m) {
             m.drawPolygon(QPolygonF({{2.5, 6}, {5, 6}, {8, 3.2}, {8, 12.8}, {5, 10}, {2.5, 10}}));
             m.setBrush(Qt::NoBrush);
             m.drawArc(QRectF(7, 5.2, 5.6, 5.6), -50 * 16, 100 * 16);
             m.drawArc(QRectF(6, 2.6, 8.6, 10.8), -50 * 16, 100 * 16);
         }},
        {"suchen",
         [](QPainter& m) {
             m.setBrush(Qt::NoBrush);
             m.drawEllipse(QPointF(7, 7), 4, 4);
             Linien(m, {{10, 10, 13.5, 13.5}});
         }},
        {"auskunft",
         [](QPainter& m) {
             Scheibe(m);
             m.drawEllipse(QPointF(8, 4.9), 0.35, 0.35);
             Linien(m, {{8, 7.6, 8, 11.4}});
         }},
        {"frage",
         [](QPainter& m) {
             Scheibe(m);
             m.setBrush(Qt::NoBrush);
             QPainterPath bogen(QPointF(6, 6.3));
             bogen.cubicTo(6, 3.6, 10, 3.6, 10, 6.2);
             bogen.cubicTo(10, 7.6, 8, 7.8, 8, 9.4);
             m.drawPath(bogen);
             m.drawEllipse(QPointF(8, 11.7), 0.3, 0.3);
         }},
        {"auf",
         [](QPainter& m) {
             Linien(m, {{3.5, 10, 8, 5.5}, {8, 5.5, 12.5, 10}});
         }},
        {"ab",
         [](QPainter& m) {
             Linien(m, {{3.5, 6, 8, 10.5}, {8, 10.5, 12.5, 6}});
         }},
        {"pfeil",
         [](QPainter& m) {
             Linien(m, {{6, 3.5, 10.5, 8}, {10.5, 8, 6, 12.5}});
         }},
    };
    return alle;
}

// The largest square in the middle.
void auf_Grund(QPainter& maler, const QRectF& platz, double seite) {
    const double kante = std::min(platz.width(), platz.height());
    maler.setRenderHint(QPainter::Antialiasing);
    maler.translate(platz.center().x() - kante / 2, platz.center().y() - kante / 2);
    maler.scale(kante / seite, kante / seite);
}

// Drawn when it is wanted, in the size that is wanted.
class Bildmotor : public QIconEngine {
public:
    Bildmotor(Text name, const QColor& farbe, const QColor& blass)
        : name_(std::move(name)), farbe_(farbe), blass_(blass.isValid() ? blass : farbe) {}

    void paint(QPainter* maler, const QRect& platz, QIcon::Mode art, QIcon::State) override {
        Bild_malen(*maler, QRectF(platz), name_, art == QIcon::Disabled ? blass_ : farbe_);
    }
    QPixmap pixmap(const QSize& größe, QIcon::Mode art, QIcon::State zustand) override {
        QPixmap bild(größe);
        bild.fill(Qt::transparent);
        QPainter maler(&bild);
        paint(&maler, QRect(QPoint(), größe), art, zustand);
        return bild;
    }
    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override {
        QList<QSize> größen;
        for (const int kante : {16, 24, 32, 48, 64, 128, 256}) größen << QSize(kante, kante);
        return größen;
    }
    QIconEngine* clone() const override { return new Bildmotor(*this); }

private:
    const Text name_;
    const QColor farbe_, blass_;
};

}  // namespace

bool Bild_malen(QPainter& maler, const QRectF& platz, const Text& name, const QColor& farbe) {
    const auto piktogramm = Piktogramme().find(name);
    if (name != "symbol" && piktogramm == Piktogramme().end()) return false;
    maler.save();
    if (name == "symbol") {
        auf_Grund(maler, platz, 256);
        Karteikasten(maler);
    } else {
        auf_Grund(maler, platz, 16);
        maler.setPen(QPen(farbe, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        maler.setBrush(farbe);
        piktogramm->second(maler);
    }
    maler.restore();
    return true;
}

QIcon Programmsymbol() { return Bildsymbol("symbol", {}, {}); }

QIcon Bildsymbol(const Text& name, const QColor& farbe, const QColor& blass) {
    if (name != "symbol" && Piktogramme().count(name) == 0) return {};
    return QIcon(new Bildmotor(name, farbe, blass));
}

}  // namespace tonkartei
