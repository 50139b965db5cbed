// Dragging from a control and dropping on it.
#include <QDrag>
#include <QDropEvent>
#include <QMimeData>
#include <QTimer>

#include "oberflaeche/hand.hpp"
#include "oberflaeche/qt/ablage.hpp"
#include "oberflaeche/qt/bauteil.hpp"
#include "oberflaeche/qt/fensterwidget.hpp"

namespace tonkartei {

void Bauteil::ziehen() {
    if (umfeld_.gezogen != nullptr) return;
    umfeld_.von_Hand([this] { element_.Ziehen_beginnt(); });
    if (element_.Ziehmarke.empty() || !umfeld_.hört()) return;
    unten_ = false;
    umfeld_.gezogen = &element_;
    umfeld_.gezogen_auf = nullptr;
    umfeld_.marken.andeuten(fenster_.Ziele(element_));
    {
        auto* zug = new QDrag(fläche_);
        auto* daten = new QMimeData;
        daten->setData(QString::fromLatin1(Ziehart), QByteArray::fromStdString(element_.Ziehmarke));
        zug->setMimeData(daten);
        zug->exec(Qt::CopyAction | Qt::MoveAction, Qt::MoveAction);
    }
    umfeld_.marken.alle_weg();
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
    if (ereignis.type() != QEvent::Drop) {
        umfeld_.marken.zeigen(*Zielwidget());
        return true;
    }
    umfeld_.marken.verlassen();
    if (eigenes)
        umfeld_.gezogen_auf = &element_;
    else
        // Later, so that the program from which the files come need not wait.
        QTimer::singleShot(0, this, [this, pfade = Pfade_aus(*fall.mimeData())] {
            umfeld_.von_Hand([&] { Hand::Dateien_ablegen(element_, pfade); });
        });
    return true;
}

// What the drop is for, as the eye sees it: the control, or the frame around it that takes the same.
QWidget* Bauteil::Zielwidget() const {
    QWidget* ziel = widget_;
    for (const Element* rahmen = element_.rahmen(); rahmen != nullptr; rahmen = rahmen->rahmen()) {
        const bool nimmt = umfeld_.gezogen != nullptr ? rahmen->Abgelegt.hat_Hörer() : rahmen->Dateien_abgelegt.hat_Hörer();
        const Bauteil* teil = nimmt ? fenster_.bauteil(*rahmen) : nullptr;
        if (teil != nullptr) ziel = teil->widget();
    }
    return ziel;
}

}  // namespace tonkartei
