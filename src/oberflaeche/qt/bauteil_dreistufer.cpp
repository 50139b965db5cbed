// The up-down switch: two arrow buttons that take the focus as one.
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QToolButton>

#include "oberflaeche/elemente.hpp"
#include "oberflaeche/hand.hpp"
#include "oberflaeche/qt/bauteile.hpp"
#include "oberflaeche/qt/bilder.hpp"
#include "oberflaeche/qt/farben.hpp"
#include "oberflaeche/qt/fensterwidget.hpp"

namespace tonkartei {
namespace {

class Stufenwidget : public QWidget {
public:
    Stufenwidget() : auf(Pfeil()), ab(Pfeil()) {
        setFocusPolicy(Qt::StrongFocus);
        auto* zeile = new QHBoxLayout(this);
        zeile->setContentsMargins(2, 2, 2, 2);
        zeile->setSpacing(2);
        zeile->addWidget(auf);
        zeile->addWidget(ab);
        Pfeile_färben();
    }
    QToolButton *auf, *ab;

protected:
    void keyPressEvent(QKeyEvent* was) override {
        if (was->key() == Qt::Key_Up)
            auf->click();
        else if (was->key() == Qt::Key_Down)
            ab->click();
        else
            QWidget::keyPressEvent(was);
    }
    void paintEvent(QPaintEvent*) override {
        if (!hasFocus()) return;
        QStyleOptionFocusRect rand;
        rand.initFrom(this);
        QPainter maler(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &rand, &maler, this);
    }

    void changeEvent(QEvent* was) override {
        if (was->type() == QEvent::PaletteChange) Pfeile_färben();
        QWidget::changeEvent(was);
    }

private:
    void Pfeile_färben() {
        const Töne ton = Töne::von(palette());
        auf->setIcon(Bildsymbol("auf", ton.Schrift, ton.Linie));
        ab->setIcon(Bildsymbol("ab", ton.Schrift, ton.Linie));
    }
    static QToolButton* Pfeil() {
        auto* knopf = new QToolButton;
        knopf->setIconSize(QSize(16, 16));
        knopf->setFocusPolicy(Qt::NoFocus);
        knopf->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        knopf->setAutoRepeat(true);
        return knopf;
    }
};

class Dreistufer_Bauteil : public Bauteil {
public:
    Dreistufer_Bauteil(Umfeld& umfeld, Fensterwidget& fenster, Dreistufer& schalter)
        : Bauteil(umfeld, fenster, schalter), stufen_(new Stufenwidget) {
        aufnehmen(stufen_);
        verbinden(stufen_->auf, Dreistufer::oben_Stufe);
        verbinden(stufen_->ab, Dreistufer::unten_Stufe);
    }

private:
    void verbinden(QToolButton* pfeil, int stufe) {
        QObject::connect(pfeil, &QToolButton::clicked, this, [this, stufe] {
            if (!element().bedienbar() || !umfeld_.erreichbar(element().fenster())) return;
            stufen_->setFocus();
            umfeld_.von_Hand([this, stufe] { Hand::schieben(element(), stufe); });
        });
    }
    bool klickt_selbst() const override { return true; }
    void Aussehen_zeigen() override {
        Bauteil::Aussehen_zeigen();
        for (QToolButton* pfeil : {stufen_->auf, stufen_->ab}) pfeil->setToolTip(stufen_->toolTip());
    }

    Stufenwidget* stufen_;
};

}  // namespace

Bauteil_Zeiger Dreistufer_machen(Umfeld& umfeld, Fensterwidget& fenster, Element& element) {
    return std::make_unique<Dreistufer_Bauteil>(umfeld, fenster, static_cast<Dreistufer&>(element));
}

}  // namespace tonkartei
