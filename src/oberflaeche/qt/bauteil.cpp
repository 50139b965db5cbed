#include "oberflaeche/qt/bauteil.hpp"

#include <QApplication>
#include <QContextMenuEvent>
#include <QFile>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTextDocument>
#include <QTimer>
#include <QWidget>

#include "oberflaeche/fenster.hpp"
#include "oberflaeche/hand.hpp"
#include "oberflaeche/listen.hpp"
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

void Bauteil::einordnen() {
    QWidget* eltern = fenster_.Boden_für(element_);
    if (widget_->parentWidget() != eltern) widget_->setParent(eltern);
}

void Bauteil::Lage_zeigen() {
    widget_->setGeometry(Pixel(element_.lage()));
    widget_->setVisible(element_.sichtbar());
}

bool Bauteil::darf() const { return umfeld_.hört() && element_.bedienbar() && umfeld_.erreichbar(element_.fenster()); }

void Bauteil::von_Hand(const std::function<void(Element&)>& tat) {
    if (darf()) umfeld_.von_Hand([&] { tat(element_); });
}

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
        case QEvent::ContextMenu:
            return (wer == widget_ || wer == fläche_) && Kontextmenü(static_cast<const QContextMenuEvent&>(*was));
        case QEvent::Shortcut: return !umfeld_.erreichbar(element_.fenster());
        case QEvent::FocusIn:
            if (wer == widget_ && umfeld_.hört()) Fokus_bekommen(static_cast<QFocusEvent&>(*was).reason());
            return false;
        case QEvent::DragEnter:
        case QEvent::DragMove:
        case QEvent::Drop: return wer == fläche_ && Ablage(*was);
        case QEvent::DragLeave:
            if (wer == fläche_) umfeld_.marken.verlassen();
            return false;
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

void Bauteil::Fokus_bekommen(int grund) {
    Element* bisher = umfeld_.ansicht.fokus();
    const bool kommt_hoch = grund == Qt::ActiveWindowFocusReason;
    // A window that comes up keeps the control that the model chose in it, whatever Qt thinks first.
    if (kommt_hoch && bisher != nullptr && bisher != &element_ && &bisher->fenster() == &element_.fenster() &&
        bisher->nimmt_Fokus())
        fenster_.Fokus_merken(*bisher);
    else if (element_.nimmt_Fokus())
        umfeld_.ansicht.von_Hand_Fokus(&element_);
    else if (kommt_hoch)
        // A label that can be clicked has the focus on the screen only, and is never the first to get it.
        QTimer::singleShot(0, &fenster_, [this] { fenster_.weitergeben(); });
}

bool Bauteil::Taste_gedrückt(QKeyEvent& ereignis) {
    Taste taste;
    if (!Taste_aus(ereignis, taste, element_.art() == Elementart::Option)) return !umfeld_.erreichbar(element_.fenster());
    if (!darf()) return true;
    const bool auslösend = taste.art == Taste::Art::Return || taste.art == Taste::Art::F2 ||
                           (taste.art == Taste::Art::Zeichen && taste.zeichen == " ");
    if (auslösend && !element_.nimmt_Fokus() && element_.Klick.hat_Hörer()) {
        umfeld_.von_Hand([this] { Hand::klicken(element_); });
        return true;
    }
    if (taste.art == Taste::Art::Return || taste.art == Taste::Art::Escape || nach_Modell(taste)) {
        umfeld_.von_Hand([&] { Hand::Taste_drücken(element_, taste); });
        return true;
    }
    // The usual effects of all other keys are the widget's own.
    if (element_.Tastendruck.hat_Hörer()) umfeld_.von_Hand([&] { element_.Tastendruck(taste); });
    return taste.erledigt;
}

// Keys whose usual effect is told by the model alone: Qt's option buttons know no groups, and its lists choose where they
// are to move only.
bool Bauteil::nach_Modell(const Taste& taste) const {
    const bool pfeil = taste.art == Taste::Art::Auf || taste.art == Taste::Art::Ab;
    if (element_.art() == Elementart::Option) return pfeil;
    if (element_.art() != Elementart::Liste || !static_cast<const Listenfeld&>(element_).wählt_erst_auf_Return) return false;
    return pfeil || (taste.art == Taste::Art::Zeichen && taste.zeichen == " ");
}

// A right click without a mouse: on the chosen line of a list.
bool Bauteil::Kontextmenü(const QContextMenuEvent& ereignis) {
    if (ereignis.reason() != QContextMenuEvent::Keyboard || !element_.Rechtsklick.hat_Hörer() || !darf()) return false;
    const int zeile = element_.art() == Elementart::Liste ? static_cast<const Listenfeld&>(element_).gewählt() : -1;
    umfeld_.menüplatz = fläche_->mapToGlobal(Platz_von(zeile).bottomLeft());
    umfeld_.von_Hand([&] { Hand::rechtsklicken(element_, zeile); });
    umfeld_.menüplatz.reset();
    return true;
}

QRect Bauteil::Platz_von(int) const { return fläche_->rect(); }

bool Taste_aus(const QKeyEvent& ereignis, Taste& taste, bool option) {
    const bool alt = ereignis.modifiers().testFlag(Qt::AltModifier);
    switch (ereignis.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter: taste.art = Taste::Art::Return; return !alt;
        case Qt::Key_Escape: taste.art = Taste::Art::Escape; return !alt;
        case Qt::Key_Tab: taste.art = Taste::Art::Tab; return !alt;
        case Qt::Key_Left:
        case Qt::Key_Right:
            taste.art = ereignis.key() == Qt::Key_Left ? Taste::Art::Auf : Taste::Art::Ab;
            return option && !alt;
        case Qt::Key_Up: taste.art = Taste::Art::Auf; return !alt;
        case Qt::Key_Down: taste.art = Taste::Art::Ab; return !alt;
        case Qt::Key_Delete: taste.art = Taste::Art::Löschen; return !alt;
        case Qt::Key_F2: taste.art = Taste::Art::F2; return !alt;
        default: break;
    }
    const QString zeichen = ereignis.text();
    if (zeichen.isEmpty() || !zeichen.at(0).isPrint() || ereignis.modifiers().testFlag(Qt::ControlModifier)) return false;
    taste.art = alt ? Taste::Art::Alt : Taste::Art::Zeichen;
    taste.zeichen = aus_Qt(zeichen);
    return true;
}

}  // namespace tonkartei
