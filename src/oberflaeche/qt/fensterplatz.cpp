// The size and the place of a window: the model's wish, as far as the screen has room for it.
#include <QApplication>
#include <QMenuBar>
#include <QResizeEvent>
#include <QScreen>
#include <QStyle>
#include <algorithm>

#include "oberflaeche/fenster.hpp"
#include "oberflaeche/qt/fensterwidget.hpp"
#include "oberflaeche/qt/masse.hpp"
#include "oberflaeche/qt/menueleiste.hpp"
#include "oberflaeche/qt/rollflaeche.hpp"
#include "oberflaeche/qt/umrechnung.hpp"

namespace tonkartei {
namespace {

// Up, so that nothing is cut off.
int aufgerundet(int twips) { return (twips + Twips_je_Pixel - 1) / Twips_je_Pixel; }

}  // namespace

void Fensterwidget::Maße_zeigen() {
    const Bereich& lage = fenster_.lage();
    const QSize innen(Pixel(lage.breite), Pixel(lage.höhe));
    const QSize größe = auf_dem_Schirm(innen);
    if (fenster_.größenveränderlich) {
        const Größe mindest = fenster_.Mindestgröße();
        setMinimumSize(auf_dem_Schirm({aufgerundet(mindest.breite), aufgerundet(mindest.höhe)}));
        setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        if (!isMaximized() && !isFullScreen()) resize(größe);
    } else {
        setFixedSize(größe);
    }
    rolle_->Bedarf(innen);
    const QPoint stelle = auf_dem_Schirm(QPoint(Pixel(lage.links), Pixel(lage.oben)), größe);
    if (pos() != stelle || !testAttribute(Qt::WA_Moved)) move(stelle);
    Boden_legen();
}

// As large as the inside asks for, with the menu; no larger than the screen has room, what is beyond is scrolled to.
QSize Fensterwidget::auf_dem_Schirm(QSize innen) const {
    const QSize ganz = innen + QSize(0, Menühöhe());
    const Größe frei = umfeld_.ansicht.freie_Fläche(fenster_);
    if (frei.breite <= 0) return ganz;
    const QSize platz = QSize(Pixel(frei.breite), Pixel(frei.höhe) + Menühöhe());
    const int leiste = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const QSize mit_Leisten(ganz.width() + (ganz.height() > platz.height() ? leiste : 0),
                            ganz.height() + (ganz.width() > platz.width() ? leiste : 0));
    return mit_Leisten.boundedTo(platz);
}

QPoint Fensterwidget::auf_dem_Schirm(QPoint stelle, QSize größe) const {
    const QRect frei = freier_Schirm();
    if (frei.isEmpty() || !umfeld_.stapelt || QGuiApplication::screens().size() > 1) return stelle;
    const QSize rahmen = isVisible() ? frameGeometry().size() - size() : QSize(0, 0);
    const QPoint ende = frei.bottomRight() - QPoint(größe.width() + rahmen.width(), größe.height() + rahmen.height());
    return {std::max(frei.left(), std::min(stelle.x(), ende.x())), std::max(frei.top(), std::min(stelle.y(), ende.y()))};
}

int Fensterwidget::Menühöhe() const {
    if (!menü_) return 0;
    const int höhe = menü_->leiste()->heightForWidth(std::max(1, Pixel(fenster_.lage().breite)));
    return höhe > 0 ? höhe : menü_->leiste()->sizeHint().height();
}

void Fensterwidget::Boden_legen() {
    const int oben = Menühöhe();
    if (menü_) menü_->leiste()->setGeometry(0, 0, width(), oben);
    (teil_ ? boden_ : rolle_)->setGeometry(0, oben, width(), std::max(0, height() - oben));
}

void Fensterwidget::resizeEvent(QResizeEvent* was) {
    QWidget::resizeEvent(was);
    Boden_legen();
    if (teil_ || !umfeld_.hört() || fenster_geändert_ || !isVisible() || isMinimized()) return;
    const Größe mindest = fenster_.Mindestgröße();
    const QSize innen = rolle_->frei({aufgerundet(mindest.breite), aufgerundet(mindest.höhe)});
    const QSize bisher(Pixel(fenster_.lage().breite), Pixel(fenster_.lage().höhe));
    if (innen != bisher) umfeld_.von_Hand([&] { fenster_.von_Hand_bemessen(Twips(innen.width()), Twips(innen.height())); });
    rolle_->Bedarf({Pixel(fenster_.lage().breite), Pixel(fenster_.lage().höhe)});
}

}  // namespace tonkartei
