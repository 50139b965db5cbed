#include "oberflaeche/qt/bauteil.hpp"

#include <QApplication>
#include <QDrag>
#include <QDropEvent>
#include <QFile>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPixmap>
#include <QTextDocument>
#include <QTimer>
#include <QUrl>
#include <QWidget>

#include "oberflaeche/fenster.hpp"
#include "oberflaeche/hand.hpp"
#include "oberflaeche/qt/ablage.hpp"
#include "oberflaeche/qt/farben.hpp"
#include "oberflaeche/qt/fensterwidget.hpp"
#include "oberflaeche/qt/stil.hpp"
#include "oberflaeche/qt/umfeld.hpp"
#include "oberflaeche/qt/umrechnung.hpp"

namespace tonkartei {

Bauteil::Bauteil(Umfeld& umfeld, Fensterwidget& fenster, Element& element)
    : umfeld_(umfeld), fenster_(fenster), element_(element) {}

Bauteil::~Bauteil() { delete widget_; }

void Bauteil::aufnehmen(QWidget* widget, QWidget* fläche) {
    widget_ = widget;
    fläche_ = fläche == nullptr ? widget : fläche;
    widget_->setObjectName(Anzeigetext(element_.voller_Name()));
    for (QWidget* w : {widget_, fläche_}) {
        w->setMouseTracking(true);
        w->setAcceptDrops(true);
    }
    widget_->installEventFilter(this);
    if (fläche_ != widget_) fläche_->installEventFilter(this);
}

void Bauteil::zeigen(unsigned änderung) {
    // First, since its colours depend on where it lies.
    if (widget_ != nullptr && (änderung & Änderung_Lage) != 0) einordnen();
    if ((änderung & Änderung_Zeilen) != 0) Zeilen_zeigen();
    if ((änderung & Änderung_Aussehen) != 0) Aussehen_zeigen();
    if ((änderung & Änderung_Lage) != 0) Lage_zeigen();
    if ((änderung & (Änderung_Wert | Änderung_Zeilen)) != 0) Wert_zeigen();
}

void Bauteil::Aussehen_zeigen() {
    widget_->setEnabled(element_.aktiv());
    const QFont schrift = Schrift(element_.schrift(), element_.fett());
    if (widget_->font() != schrift) widget_->setFont(schrift);
    const QString tooltip = Anzeigeabsätze(element_.tooltip());
    widget_->setToolTip(Qt::mightBeRichText(tooltip) ? tooltip.toHtmlEscaped() : tooltip);
    Farben_zeigen();
}

void Bauteil::Farben_zeigen() {
    const bool eigener_Grund = element_.hintergrund() != Farbe_Standard;
    if (malt_Grund_nicht()) widget_->setAutoFillBackground(eigener_Grund);
    // What is not set here comes from what the control lies on.
    QPalette farben;
    // A frame paints its ground by itself: as a palette it would pass to everything inside. Of a drop-down list the field
    // alone has the colour.
    const Elementart art = element_.art();
    if (eigener_Grund && art != Elementart::Rahmen)
        for (const auto rolle : {QPalette::Window, QPalette::Button, QPalette::Base})
            if (art != Elementart::Auswahl || rolle == QPalette::Button)
                farben.setColor(rolle, Qt_Farbe(element_.hintergrund()));
    if (fenster_.eigener_Grund())
        lesbare_Schrift(farben);
    else if (element_.farbe() != Farbe_Standard)
        for (const auto rolle : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text})
            farben.setColor(rolle, Qt_Farbe(element_.farbe()));
    if (farben.resolveMask() != 0 || widget_->testAttribute(Qt::WA_SetPalette)) widget_->setPalette(farben);
}

// On a ground of the window's own, texts keep the colour that they are given as far as it can be read there.
void Bauteil::lesbare_Schrift(QPalette& farben) const {
    const Töne ton = Töne::von(fenster_.Boden_für(element_)->palette());
    const QColor außen = fenster_.Grund_unter(element_.rahmen());
    const auto grund = [&](QPalette::ColorRole rolle) {
        const bool im_Feld = rolle == QPalette::Text && element_.art() == Elementart::Auswahl;
        if (element_.hintergrund() != Farbe_Standard && !im_Feld) return Qt_Farbe(element_.hintergrund());
        switch (element_.art()) {
            case Elementart::Knopf:
            case Elementart::Auswahl:
            case Elementart::Eingabe:
            case Elementart::Liste: return ton.Feld;
            default: return außen;
        }
    };
    for (const auto rolle : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text}) {
        const QColor darunter = grund(rolle);
        const QColor gewünscht = element_.farbe() != Farbe_Standard              ? Qt_Farbe(element_.farbe())
                                 : ist_dunkel(darunter) == ist_dunkel(ton.Grund) ? ton.Schrift
                                                                                 : Töne::zu(darunter).Schrift;
        const QColor lesbar = abgesetzt(gewünscht, darunter);
        if (lesbar == ton.Schrift) continue;
        const bool ruht_auf_Eigenem = element_.art() != Elementart::Knopf && element_.art() != Elementart::Auswahl;
        farben.setColor(rolle, lesbar);
        farben.setColor(QPalette::Disabled, rolle, abgesetzt(ton.blass, ruht_auf_Eigenem ? darunter : ton.Grund));
    }
}

void Bauteil::einordnen() {
    QWidget* eltern = fenster_.Boden_für(element_);
    if (widget_->parentWidget() != eltern) widget_->setParent(eltern);
}

void Bauteil::Lage_zeigen() {
    widget_->setGeometry(Pixel(element_.lage()));
    widget_->setVisible(element_.sichtbar());
}

bool Bauteil::darf() const { return umfeld_.hört() && element_.bedienbar() && umfeld_.erreichbar(element_.fenster()); }

bool Bauteil::eventFilter(QObject* wer, QEvent* was) {
    if (umfeld_.zu_Ende) return false;
    switch (was->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseMove:
            if (wer != fläche_) return false;
            return Maus(static_cast<QMouseEvent&>(*was));
        case QEvent::Enter:
            if (wer == fläche_ && darf()) {
                const QPoint stelle = fläche_->mapTo(widget_, static_cast<QEnterEvent&>(*was).position().toPoint());
                umfeld_.von_Hand([&] { Hand::Maus_bewegen(element_, Twips(stelle.x()), Twips(stelle.y())); });
            }
            return false;
        case QEvent::Wheel: return !umfeld_.erreichbar(element_.fenster());
        case QEvent::KeyPress: return wer == widget_ && Taste_gedrückt(static_cast<QKeyEvent&>(*was));
        case QEvent::Shortcut: return !umfeld_.erreichbar(element_.fenster());
        case QEvent::FocusIn:
            if (wer == widget_ && umfeld_.hört()) Fokus_bekommen(static_cast<QFocusEvent&>(*was).reason());
            return false;
        case QEvent::DragEnter:
        case QEvent::DragMove:
        case QEvent::Drop: return wer == fläche_ && Ablage(*was);
        default: return false;
    }
}

bool Bauteil::Maus(QMouseEvent& ereignis) {
    const bool links = ereignis.button() == Qt::LeftButton;
    const QPoint stelle = fläche_->mapTo(widget_, ereignis.position().toPoint());
    // What does not take the mouse by itself keeps it from the ground below, which is another place to the program.
    const bool stumm = !klickt_selbst() && fläche_ == widget_ && !element_.nimmt_Fokus();
    // A press that was heard ends, even if a box took the release away or the control is disabled by now.
    const bool geht_zu_Ende =
        ereignis.type() == QEvent::MouseButtonRelease ? links : !ereignis.buttons().testFlag(Qt::LeftButton);
    if (unten_ && geht_zu_Ende && (!darf() || ereignis.type() != QEvent::MouseButtonRelease)) {
        unten_ = false;
        umfeld_.von_Hand([&] { Hand::loslassen(element_, Twips(stelle.x()), Twips(stelle.y())); });
    }
    if (!darf()) {
        if (ereignis.type() == QEvent::MouseMove && umfeld_.hört() && umfeld_.erreichbar(element_.fenster()))
            umfeld_.von_Hand([this] { element_.fenster().Mausbewegung(); });
        unten_ = false;
        return true;
    }
    const int x = Twips(stelle.x()), y = Twips(stelle.y());
    // Lists are worked by the model alone; so a press on them leaves nothing half done in the widget.
    const bool schluckt = stumm || fläche_ != widget_;
    switch (ereignis.type()) {
        case QEvent::MouseButtonPress:
            if (links) {
                druckpunkt_ = stelle;
                unten_ = true;
                umfeld_.von_Hand([&] { Hand::drücken(element_, x, y); });
                gedrückt(ereignis.position().toPoint());
            }
            return schluckt;
        case QEvent::MouseButtonDblClick:
            if (links) {
                // The second press of a quick pair: to a button it is a press like any other.
                if (klickt_selbst()) umfeld_.von_Hand([&] { Hand::drücken(element_, x, y); });
                unten_ = false;
                umfeld_.von_Hand([&] { Hand::doppelklicken(element_, x, y); });
            }
            return schluckt;
        case QEvent::MouseMove:
            umfeld_.von_Hand([&] { Hand::Maus_bewegen(element_, x, y); });
            if (unten_ && ereignis.buttons().testFlag(Qt::LeftButton) &&
                (stelle - druckpunkt_).manhattanLength() >= QApplication::startDragDistance())
                ziehen();
            return schluckt;
        case QEvent::MouseButtonRelease:
            if (ereignis.button() == Qt::RightButton) {
                const int zeile = Zeile_an(ereignis.position().toPoint());
                umfeld_.von_Hand([&] { Hand::rechtsklicken(element_, zeile); });
            } else if (links) {
                const bool war_unten = unten_;
                unten_ = false;
                umfeld_.von_Hand([&] { Hand::loslassen(element_, x, y); });
                if (war_unten && !klickt_selbst() && widget_->rect().contains(stelle))
                    umfeld_.von_Hand([this] { element_.von_Hand_klicken(); });
            }
            return schluckt;
        default: return false;
    }
}

void Bauteil::ziehen() {
    if (umfeld_.gezogen != nullptr) return;
    umfeld_.von_Hand([this] { element_.Ziehen_beginnt(); });
    if (element_.Ziehmarke.empty() || !umfeld_.hört()) return;
    unten_ = false;
    umfeld_.gezogen = &element_;
    umfeld_.gezogen_auf = nullptr;
    {
        auto* zug = new QDrag(fläche_);
        auto* daten = new QMimeData;
        daten->setData(QString::fromLatin1(Ziehart), QByteArray::fromStdString(element_.Ziehmarke));
        zug->setMimeData(daten);
        zug->exec(Qt::CopyAction | Qt::MoveAction, Qt::MoveAction);
    }
    // Only now, with Qt's drag over: what the drop sets off may ask and wait.
    Element* ziel = umfeld_.gezogen_auf;
    umfeld_.gezogen = nullptr;
    umfeld_.gezogen_auf = nullptr;
    if (ziel != nullptr) umfeld_.von_Hand([&] { ziel->Abgelegt(element_); });
}

bool Bauteil::Ablage(QEvent& ereignis) {
    auto& fall = static_cast<QDropEvent&>(ereignis);
    const bool eigenes = umfeld_.gezogen != nullptr && element_.Abgelegt.hat_Hörer() &&
                         fall.mimeData()->hasFormat(QString::fromLatin1(Ziehart));
    const bool dateien = umfeld_.gezogen == nullptr && element_.Dateien_abgelegt.hat_Hörer() && hat_Pfade(*fall.mimeData());
    if (!darf() || (!eigenes && !dateien)) return false;
    fall.acceptProposedAction();
    if (ereignis.type() != QEvent::Drop) return true;
    if (eigenes)
        umfeld_.gezogen_auf = &element_;
    else
        // Later, so that the program from which the files come need not wait.
        QTimer::singleShot(0, this, [this, pfade = Pfade_aus(*fall.mimeData())] {
            umfeld_.von_Hand([&] { Hand::Dateien_ablegen(element_, pfade); });
        });
    return true;
}

void Bauteil::Fokus_bekommen(int grund) {
    Element* bisher = umfeld_.ansicht.fokus();
    // A window that comes up keeps the control that the model chose in it, whatever Qt thinks first.
    if (grund == Qt::ActiveWindowFocusReason && bisher != nullptr && bisher != &element_ &&
        &bisher->fenster() == &element_.fenster() && bisher->nimmt_Fokus())
        fenster_.Fokus_merken(*bisher);
    else
        umfeld_.ansicht.von_Hand_Fokus(&element_);
}

bool Bauteil::Taste_gedrückt(QKeyEvent& ereignis) {
    Taste taste;
    if (!Taste_aus(ereignis, taste)) return !umfeld_.erreichbar(element_.fenster());
    if (!darf()) return true;
    if (taste.art == Taste::Art::Return || taste.art == Taste::Art::Escape) {
        umfeld_.von_Hand([&] { Hand::Taste_drücken(element_, taste); });
        return true;
    }
    // The usual effects of all other keys are the widget's own.
    if (element_.Tastendruck.hat_Hörer()) umfeld_.von_Hand([&] { element_.Tastendruck(taste); });
    return taste.erledigt;
}

bool Taste_aus(const QKeyEvent& ereignis, Taste& taste) {
    const bool alt = ereignis.modifiers().testFlag(Qt::AltModifier);
    switch (ereignis.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter: taste.art = Taste::Art::Return; return !alt;
        case Qt::Key_Escape: taste.art = Taste::Art::Escape; return !alt;
        case Qt::Key_Tab: taste.art = Taste::Art::Tab; return !alt;
        case Qt::Key_Up: taste.art = Taste::Art::Auf; return !alt;
        case Qt::Key_Down: taste.art = Taste::Art::Ab; return !alt;
        case Qt::Key_Delete: taste.art = Taste::Art::Löschen; return !alt;
        default: break;
    }
    const QString zeichen = ereignis.text();
    if (zeichen.isEmpty() || !zeichen.at(0).isPrint() || ereignis.modifiers().testFlag(Qt::ControlModifier)) return false;
    taste.art = alt ? Taste::Art::Alt : Taste::Art::Zeichen;
    taste.zeichen = aus_Qt(zeichen);
    return true;
}

}  // namespace tonkartei
