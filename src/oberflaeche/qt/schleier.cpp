#include "oberflaeche/qt/schleier.hpp"

#include <QEvent>
#include <QPainter>

#include "oberflaeche/qt/farben.hpp"

namespace tonkartei {
namespace {

constexpr int Deckung = 110;  // of 255: what lies below can still be read

}  // namespace

Schleier::Schleier(QWidget* eltern, std::function<void()> geklickt) : QWidget(eltern), geklickt_(std::move(geklickt)) {
    setObjectName(QStringLiteral("Schleier"));
    setFocusPolicy(Qt::NoFocus);
    setGeometry(eltern->rect());
    eltern->installEventFilter(this);
}

void Schleier::paintEvent(QPaintEvent*) {
    QColor farbe = Töne::von(palette()).Grund;
    farbe.setAlpha(Deckung);
    QPainter(this).fillRect(rect(), farbe);
}

void Schleier::mousePressEvent(QMouseEvent*) { geklickt_(); }

bool Schleier::eventFilter(QObject* wer, QEvent* was) {
    if (wer == parent() && was->type() == QEvent::Resize) setGeometry(parentWidget()->rect());
    return QWidget::eventFilter(wer, was);
}

}  // namespace tonkartei
