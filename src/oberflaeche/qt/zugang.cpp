#include "oberflaeche/qt/zugang.hpp"

#include <QAccessible>
#include <QLineEdit>
#include <QToolButton>

#include "oberflaeche/elemente.hpp"
#include "oberflaeche/fenster.hpp"
#include "oberflaeche/listen.hpp"
#include "oberflaeche/qt/fensterwidget.hpp"
#include "oberflaeche/qt/umrechnung.hpp"
#include "oberflaeche/qt/zugangsarten.hpp"
#include "oberflaeche/vorlesename.hpp"

namespace tonkartei {
namespace {

const Fensterwidget* Fenster_um(const QWidget* widget) {
    for (; widget != nullptr; widget = widget->parentWidget())
        if (const auto* fenster = dynamic_cast<const Fensterwidget*>(widget)) return fenster;
    return nullptr;
}

bool ist_klickbar(const Element& element) { return element.art() == Elementart::Schrift && element.Klick.hat_Hörer(); }

QAccessible::Role Fensterrolle(const Fensterwidget& widget) {
    if (!widget.isWindow()) return QAccessible::Pane;
    return widget.fenster().eigenständig ? QAccessible::Window : QAccessible::Dialog;
}

// Null where Qt's own does, which reads the name from the widget.
QAccessibleInterface* Zugang_machen(Bauteil& teil) {
    Zugangsnamen_setzen(teil);
    QWidget* widget = teil.widget();
    const Element& element = teil.element();
    switch (element.art()) {
        case Elementart::Rahmen:
            return new Bodenzugang(widget, element.beschriftung().empty() ? QAccessible::Pane : QAccessible::Grouping);
        case Elementart::Dreistufer: return new Stufenzugang(widget, teil);
        case Elementart::Fläche: return new QAccessibleWidget(widget, QAccessible::Graphic);
        case Elementart::Balken:
            if (static_cast<const Balken&>(element).Diagramm) return new QAccessibleWidget(widget, QAccessible::Graphic);
            return nullptr;
        case Elementart::Schrift: return ist_klickbar(element) ? new Klickzugang(widget, teil) : nullptr;
        default: return nullptr;
    }
}

QAccessibleInterface* Zugang(const QString& klasse, QObject* objekt) {
    auto* widget = qobject_cast<QWidget*>(objekt);
    // Asked again for each class that it is derived from.
    if (widget == nullptr || klasse != QLatin1String(widget->metaObject()->className())) return nullptr;
    const Fensterwidget* fenster = Fenster_um(widget);
    if (fenster == nullptr) return nullptr;
    if (fenster == widget) return new Bodenzugang(widget, Fensterrolle(*fenster));
    if (fenster->boden() == widget) return new Bodenzugang(widget, QAccessible::Pane);
    if (Bauteil* teil = fenster->bauteil_von(*widget)) return Zugang_machen(*teil);
    // The button in a text field that empties it.
    if (qobject_cast<QLineEdit*>(widget->parentWidget()) != nullptr && qobject_cast<QToolButton*>(widget) != nullptr)
        widget->setAccessibleName(QStringLiteral("leeren"));
    return nullptr;
}

}  // namespace

void Zugang_einrichten() { QAccessible::installFactory(Zugang); }

void Zugangsnamen_setzen(const Bauteil& teil) {
    QWidget* widget = teil.widget();
    const Element& element = teil.element();
    // Labels are their own text.
    if (widget == nullptr || (element.art() == Elementart::Schrift && !ist_klickbar(element))) return;
    const QString name = Anzeigetext(Vorlesename(element));
    if (widget->accessibleName() != name) widget->setAccessibleName(name);
    if (element.art() != Elementart::Liste) return;
    const auto& liste = static_cast<const Listenfeld&>(element);
    const QString leertext = liste.Anzahl() == 0 ? Anzeigeabsätze(liste.leertext()) : QString();
    if (widget->accessibleDescription() != leertext) widget->setAccessibleDescription(leertext);
}

}  // namespace tonkartei
