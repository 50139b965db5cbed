#include "oberflaeche/qt/zugang.hpp"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
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

void benennen(QWidget& widget, const QString& name) {
    if (widget.accessibleName() != name) widget.setAccessibleName(name);
}

// A label or a picture that does something.
bool ist_klickbar(const Element& element) {
    const Elementart art = element.art();
    return (art == Elementart::Schrift || art == Elementart::Fläche) && element.Klick.hat_Hörer();
}

QAccessible::Role Fensterrolle(const Fensterwidget& widget) {
    if (!widget.isWindow()) return QAccessible::Pane;
    return widget.fenster().eigenständig ? QAccessible::Window : QAccessible::Dialog;
}

// Null where Qt's own does, which reads the name from the widget.
QAccessibleInterface* Zugang_machen(Bauteil& teil) {
    QWidget* widget = teil.widget();
    const Element& element = teil.element();
    if (ist_klickbar(element)) return new Klickzugang(widget, teil);
    switch (element.art()) {
        case Elementart::Rahmen:
            return new Bodenzugang(widget, Vorlesename(element).empty() ? QAccessible::Pane : QAccessible::Grouping);
        case Elementart::Option: return new Optionszugang(static_cast<QAbstractButton*>(widget));
        case Elementart::Auswahl: return new Auswahlzugang(static_cast<QComboBox*>(widget));
        case Elementart::Dreistufer: return new Stufenzugang(widget, teil);
        case Elementart::Fläche: return new QAccessibleWidget(widget, QAccessible::Graphic);
        case Elementart::Balken:
            if (static_cast<const Balken&>(element).Diagramm) return new QAccessibleWidget(widget, QAccessible::Graphic);
            return nullptr;
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
    Bauteil* teil = fenster->bauteil_von(*widget);
    return teil == nullptr ? nullptr : Zugang_machen(*teil);
}

}  // namespace

Zugangswache::Zugangswache() {
    QAccessible::installFactory(Zugang);
    QAccessible::installActivationObserver(this);
}

Zugangswache::~Zugangswache() {
    QAccessible::removeActivationObserver(this);
    QAccessible::removeFactory(Zugang);
}

void Zugangswache::accessibilityActiveChanged(bool aktiv) {
    if (!aktiv) return;
    for (const QWidget* widget : QApplication::allWidgets()) Zugangsnamen_setzen(*widget);
}

void Zugangsnamen_setzen(const QWidget& widget) {
    const Fensterwidget* fenster = Fenster_um(&widget);
    if (const Bauteil* teil = fenster == nullptr ? nullptr : fenster->bauteil_von(widget)) Zugangsnamen_setzen(*teil);
}

void Zugangsnamen_setzen(const Bauteil& teil) {
    QWidget* widget = teil.widget();
    const Element& element = teil.element();
    // Labels are their own text.
    if (widget == nullptr || (element.art() == Elementart::Schrift && !ist_klickbar(element))) return;
    benennen(*widget, Anzeigetext(Vorlesename(element)));
    if (element.art() == Elementart::Eingabe) {
        // The one that empties it.
        for (QToolButton* knopf : widget->findChildren<QToolButton*>()) benennen(*knopf, QStringLiteral("leeren"));
    } else if (element.art() == Elementart::Liste) {
        const auto& liste = static_cast<const Listenfeld&>(element);
        const QString leertext = liste.Anzahl() == 0 ? Anzeigeabsätze(liste.leertext()) : QString();
        if (widget->accessibleDescription() != leertext) widget->setAccessibleDescription(leertext);
    }
}

}  // namespace tonkartei
