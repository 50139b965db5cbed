#include "oberflaeche/qt/rollflaeche.hpp"

#include <QApplication>
#include <QScrollBar>
#include <QStyle>
#include <QWheelEvent>
#include <algorithm>

namespace tonkartei {
namespace {

constexpr int Schritt = 24, Luft = 12;  // pixels
constexpr int Radschritt = 120;         // of the wheel's units

int Stelle(const QScrollBar* leiste) { return leiste == nullptr || leiste->isHidden() ? 0 : leiste->value(); }

void so_weit_wie_nötig(QScrollBar* leiste, int von, int bis, int sichtbar) {
    if (leiste == nullptr || leiste->isHidden()) return;
    if (von - Luft < leiste->value())
        leiste->setValue(von - Luft);
    else if (bis + Luft > leiste->value() + sichtbar)
        leiste->setValue(std::min(von - Luft, bis + Luft - sichtbar));
}

}  // namespace

Rollfläche::Rollfläche(Art art, QWidget* eltern) : QWidget(eltern), art_(art), boden_(new QWidget(this)) {
    setMouseTracking(true);
    boden_->setMouseTracking(true);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, const QWidget* neu) {
        if (neu != nullptr && boden_->isAncestorOf(neu)) in_Sicht_bringen(*neu);
    });
}

void Rollfläche::Bedarf(QSize größe) {
    if (bedarf_ == größe) return;
    bedarf_ = größe;
    legen();
}

QScrollBar* Rollfläche::Leiste(Qt::Orientation richtung) {
    QScrollBar*& leiste = richtung == Qt::Horizontal ? waagrecht_ : senkrecht_;
    if (leiste == nullptr) {
        leiste = new QScrollBar(richtung, this);
        leiste->setAccessibleName(richtung == Qt::Horizontal ? QStringLiteral("nach rechts") : QStringLiteral("nach unten"));
        leiste->setSingleStep(Schritt);
        leiste->setFocusPolicy(Qt::NoFocus);
        connect(leiste, &QScrollBar::valueChanged, this, [this] { boden_->move(-Stelle(waagrecht_), -Stelle(senkrecht_)); });
    }
    return leiste;
}

int Rollfläche::Dicke() const {
    return art_ == Art::schmal ? schmaler_Rand : style()->pixelMetric(QStyle::PM_ScrollBarExtent);
}

QSize Rollfläche::frei(QSize bedarf) const {
    QSize platz = size();
    if (art_ == Art::schmal) return platz - QSize(Dicke(), 0);
    const bool senkrecht = bedarf.height() > platz.height();
    if (senkrecht) platz.rwidth() -= Dicke();
    if (bedarf.width() <= platz.width()) return platz;
    platz.rheight() -= Dicke();
    if (!senkrecht && bedarf.height() > platz.height()) platz.rwidth() -= Dicke();
    return platz;
}

void Rollfläche::legen() {
    const int dick = Dicke();
    const QSize platz = frei(bedarf_);
    const bool senkrecht = bedarf_.height() > platz.height();
    const bool waagrecht = art_ == Art::ganz && bedarf_.width() > platz.width();
    const auto stellen = [&](Qt::Orientation richtung, bool nötig, int ganz, int teil, const QRect& wo) {
        if (!nötig && (richtung == Qt::Horizontal ? waagrecht_ : senkrecht_) == nullptr) return;
        QScrollBar& leiste = *Leiste(richtung);
        leiste.setGeometry(wo);
        leiste.setVisible(nötig);
        leiste.setRange(0, std::max(0, ganz - teil));
        leiste.setPageStep(std::max(1, teil));
        leiste.raise();
    };
    stellen(Qt::Horizontal, waagrecht, bedarf_.width(), platz.width(), {0, platz.height(), platz.width(), dick});
    stellen(Qt::Vertical, senkrecht, bedarf_.height(), platz.height(), {width() - dick, 0, dick, platz.height()});
    const QSize größe(art_ == Art::schmal ? platz.width() : std::max(platz.width(), bedarf_.width()),
                      std::max(platz.height(), bedarf_.height()));
    boden_->setGeometry(QRect(QPoint(-Stelle(waagrecht_), -Stelle(senkrecht_)), größe));
}

void Rollfläche::in_Sicht_bringen(const QWidget& widget) {
    const QRect platz(widget.mapTo(boden_, QPoint()), widget.size());
    so_weit_wie_nötig(waagrecht_, platz.left(), platz.right(), width());
    so_weit_wie_nötig(senkrecht_, platz.top(), platz.bottom(), height());
}

void Rollfläche::resizeEvent(QResizeEvent* was) {
    QWidget::resizeEvent(was);
    legen();
}

void Rollfläche::wheelEvent(QWheelEvent* was) {
    QScrollBar* leiste = senkrecht_ != nullptr && senkrecht_->isVisible() ? senkrecht_ : waagrecht_;
    if (leiste == nullptr || !leiste->isVisible()) return was->ignore();
    const int drehung = was->angleDelta().y() != 0 ? was->angleDelta().y() : was->angleDelta().x();
    leiste->setValue(leiste->value() - drehung * 3 * Schritt / Radschritt);
}

}  // namespace tonkartei
