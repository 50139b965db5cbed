// What a screen reader is told: names of controls that have no caption of their own, roles of what is drawn by ourselves,
// and the order in which a window is read.
#pragma once

#include <QString>

class QWidget;

namespace tonkartei {

class Element;

// Empty for a control whose caption says it, and where nothing does.
QString Vorlesename(const Element& element);
// Once a process, before the first window.
void Zugang_einrichten();
// The widget of a control.
void als_Element(QWidget& widget, Element& element);

}  // namespace tonkartei
