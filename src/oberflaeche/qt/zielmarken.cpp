#include "oberflaeche/qt/zielmarken.hpp"

#include <QPainter>

#include "oberflaeche/qt/farben.hpp"

namespace tonkartei {
namespace {

// Lies over its target and lets everything through.
class Marke : public QWidget {
public:
    Marke(QWidget& ziel, bool deutlich) : QWidget(&ziel), deutlich_(deutlich) {
        setObjectName(QStringLiteral("Zielmarke"));
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setGeometry(ziel.rect());
        raise();
        show();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter maler(this);
        maler.setRenderHint(QPainter::Antialiasing);
        QColor farbe = Töne::von(palette()).Akzent;
        const double dick = deutlich_ ? 3 : 1;
        QColor hauch = farbe;
        hauch.setAlpha(deutlich_ ? 36 : 0);
        farbe.setAlpha(deutlich_ ? 255 : 150);
        maler.setPen(QPen(farbe, dick));
        maler.setBrush(hauch);
        const double rand = dick / 2;
        maler.drawRoundedRect(QRectF(rect()).adjusted(rand, rand, -rand, -rand), 4, 4);
    }

private:
    bool deutlich_;
};

}  // namespace

Zielmarken::~Zielmarken() { alle_weg(); }

void Zielmarken::zeigen(QWidget& ziel) {
    if (marke_ != nullptr && marke_->parentWidget() == &ziel) return;
    verlassen();
    marke_ = new Marke(ziel, true);
}

void Zielmarken::verlassen() { delete marke_.data(); }

void Zielmarken::andeuten(const std::vector<QWidget*>& ziele) {
    for (QWidget* ziel : ziele) angedeutete_.emplace_back(new Marke(*ziel, false));
}

void Zielmarken::alle_weg() {
    verlassen();
    for (const auto& eine : angedeutete_) delete eine.data();
    angedeutete_.clear();
}

}  // namespace tonkartei
