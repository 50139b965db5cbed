// Hands for widgets: synthetic mouse and key events.
#pragma once

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>

namespace tonkartei {

inline void Maus(QWidget& w, QEvent::Type art, QPoint stelle, Qt::MouseButton knopf = Qt::LeftButton) {
    const Qt::MouseButtons unten = art == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::MouseButtons(knopf);
    QMouseEvent ereignis(art, QPointF(stelle), QPointF(w.mapToGlobal(stelle)), knopf, unten, Qt::NoModifier);
    QApplication::sendEvent(&w, &ereignis);
}

inline void Klick(QWidget& w, QPoint stelle, Qt::MouseButton knopf = Qt::LeftButton) {
    Maus(w, QEvent::MouseButtonPress, stelle, knopf);
    Maus(w, QEvent::MouseButtonRelease, stelle, knopf);
}

inline void Klick(QWidget& w) { Klick(w, w.rect().center()); }

inline void Taste_auf(QWidget& w, int taste, const QString& text = {}) {
    QKeyEvent unten(QEvent::KeyPress, taste, Qt::NoModifier, text);
    QApplication::sendEvent(&w, &unten);
    QKeyEvent oben(QEvent::KeyRelease, taste, Qt::NoModifier, text);
    QApplication::sendEvent(&w, &oben);
}

inline bool Menütaste(QWidget& w) {
    QContextMenuEvent ereignis(QContextMenuEvent::Keyboard, QPoint(), w.mapToGlobal(QPoint()));
    return QApplication::sendEvent(&w, &ereignis);
}

}  // namespace tonkartei
