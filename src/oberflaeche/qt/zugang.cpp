#include "oberflaeche/qt/zugang.hpp"

#include <QAbstractButton>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <QKeyEvent>
#include <QVariant>
#include <algorithm>
#include <vector>

#include "oberflaeche/elemente.hpp"
#include "oberflaeche/fenster.hpp"
#include "oberflaeche/qt/fensterwidget.hpp"
#include "oberflaeche/qt/umrechnung.hpp"

namespace tonkartei {
namespace {

constexpr char Merkmal[] = "Element";

const Element* Element_von(const QObject* objekt) {
    return objekt == nullptr ? nullptr : static_cast<const Element*>(objekt->property(Merkmal).value<void*>());
}

// Without the mark of the access key and what leads on to the control.
QString ohne_Zeichen(QString text) {
    text.replace(QLatin1String("&&"), QLatin1String("\x01"));
    text.remove(QLatin1Char('&')).replace(QLatin1Char('\x01'), QLatin1Char('&'));
    text = text.trimmed();
    while (text.endsWith(QLatin1Char(':'))) text.chop(1);
    return text;
}

const Schriftfeld* als_Schrift(const Element* element) {
    return element != nullptr && element->art() == Elementart::Schrift ? static_cast<const Schriftfeld*>(element) : nullptr;
}

// The label that stands before it.
const Schriftfeld* Schrift_vor(const Element& element) {
    const auto& alle = element.fenster().elemente();
    const auto hier = std::find(alle.begin(), alle.end(), &element);
    if (hier == alle.begin() || hier == alle.end()) return nullptr;
    const Schriftfeld* davor = als_Schrift(*(hier - 1));
    return davor != nullptr && !davor->eingerahmt && !davor->wie_Daten && !davor->beschriftung().empty() ? davor : nullptr;
}

bool ist_klickbar(const Element& element) { return element.Klick.hat_Hörer() || element.Doppelklick.hat_Hörer(); }

// Labels that show a value, or that can be clicked, and pictures: their widgets have no good role of their own.
class Eigenes : public QAccessibleWidget {
public:
    Eigenes(QWidget* widget, QAccessible::Role rolle, const Element& element)
        : QAccessibleWidget(widget, rolle), element_(element) {}

    QString text(QAccessible::Text was) const override {
        if (was != QAccessible::Name) return QAccessibleWidget::text(was);
        const QString name = Vorlesename(element_), inhalt = Anzeigetext(element_.beschriftung());
        return name.isEmpty() ? ohne_Zeichen(inhalt) : inhalt.isEmpty() ? name : name + QLatin1String(": ") + inhalt;
    }
    QStringList actionNames() const override { return ist_klickbar(element_) ? QStringList{pressAction()} : QStringList(); }
    void doAction(const QString& was) override {
        if (was != pressAction()) return;
        QKeyEvent taste(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QApplication::sendEvent(widget(), &taste);
    }

private:
    const Element& element_;
};

// What holds controls: windows, grounds and frames. Its children are read as the layout has them.
class Behälter : public QAccessibleWidget {
public:
    Behälter(QWidget* widget, QAccessible::Role rolle) : QAccessibleWidget(widget, rolle) {}

    QAccessibleInterface* child(int stelle) const override {
        const auto reihe = Reihe();
        return stelle < 0 || stelle >= static_cast<int>(reihe.size()) ? nullptr : reihe[static_cast<std::size_t>(stelle)];
    }
    int indexOfChild(const QAccessibleInterface* kind) const override {
        const auto reihe = Reihe();
        const auto hier = std::find_if(reihe.begin(), reihe.end(),
                                       [kind](const auto* eines) { return eines->object() == kind->object(); });
        return hier == reihe.end() ? -1 : static_cast<int>(hier - reihe.begin());
    }

private:
    std::vector<QAccessibleInterface*> Reihe() const {
        std::vector<QAccessibleInterface*> reihe;
        for (int i = 0; i < childCount(); ++i)
            if (QAccessibleInterface* kind = QAccessibleWidget::child(i)) reihe.push_back(kind);
        std::stable_sort(reihe.begin(), reihe.end(), [](const auto* a, const auto* b) { return Folge(*a) < Folge(*b); });
        return reihe;
    }
    static int Folge(const QAccessibleInterface& kind) {
        const Element* element = Element_von(kind.object());
        return element == nullptr ? 0 : element->Lesefolge;
    }
};

QAccessibleInterface* gemacht(const QString&, QObject* objekt) {
    auto* widget = qobject_cast<QWidget*>(objekt);
    if (widget == nullptr) return nullptr;
    if (const auto* fenster = dynamic_cast<Fensterwidget*>(widget)) {
        const bool teil = fenster->fenster().Elternfenster() != nullptr;
        return new Behälter(widget, teil                                 ? QAccessible::Grouping
                                    : widget->windowType() == Qt::Dialog ? QAccessible::Dialog
                                                                         : QAccessible::Window);
    }
    if (const Element* element = Element_von(widget)) {
        switch (element->art()) {
            case Elementart::Schrift:
                return new Eigenes(widget, ist_klickbar(*element) ? QAccessible::Button : QAccessible::StaticText, *element);
            case Elementart::Fläche:
                return new Eigenes(widget, ist_klickbar(*element) ? QAccessible::Button : QAccessible::Graphic, *element);
            case Elementart::Balken:
                if (static_cast<const Balken*>(element)->Diagramm)
                    return new Eigenes(widget, QAccessible::Graphic, *element);
                return nullptr;
            case Elementart::Dreistufer: return new QAccessibleWidget(widget, QAccessible::SpinBox);
            case Elementart::Rahmen: return new Behälter(widget, QAccessible::Grouping);
            default: return nullptr;
        }
    }
    // The ground between a window or a frame and what lies in it.
    const bool schlicht = widget->metaObject() == &QWidget::staticMetaObject && widget->focusPolicy() == Qt::NoFocus;
    return schlicht && !widget->isWindow() ? new Behälter(widget, QAccessible::LayeredPane) : nullptr;
}

}  // namespace

QString Vorlesename(const Element& element) {
    if (!element.Vorlesename.empty()) return Anzeigetext(element.Vorlesename);
    const bool trägt_Namen = element.art() == Elementart::Knopf || element.art() == Elementart::Kasten ||
                             element.art() == Elementart::Option || element.art() == Elementart::Rahmen;
    const Schriftfeld* schrift = als_Schrift(&element);
    if (trägt_Namen && !element.beschriftung().empty()) return {};
    if (schrift != nullptr && !schrift->eingerahmt && !ist_klickbar(element)) return {};
    if (const Schriftfeld* davor = trägt_Namen ? nullptr : Schrift_vor(element))
        return ohne_Zeichen(Anzeigetext(davor->beschriftung()));
    if (!element.tooltip().empty()) return Anzeigetext(element.tooltip());
    for (const Element* rahmen = element.rahmen(); rahmen != nullptr; rahmen = rahmen->rahmen())
        if (!rahmen->beschriftung().empty()) return ohne_Zeichen(Anzeigetext(rahmen->beschriftung()));
    return {};
}

void Zugang_einrichten() { QAccessible::installFactory(gemacht); }

void als_Element(QWidget& widget, Element& element) { widget.setProperty(Merkmal, QVariant::fromValue<void*>(&element)); }

}  // namespace tonkartei
