#include "oberflaeche/qt/zugangsarten.hpp"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <algorithm>

#include "oberflaeche/elemente.hpp"
#include "oberflaeche/hand.hpp"
#include "oberflaeche/qt/leseordnung.hpp"
#include "oberflaeche/qt/zugang.hpp"

namespace tonkartei {

std::vector<QWidget*> Bodenzugang::Kinder() const {
    std::vector<QWidget*> zu_sehen, versteckt;
    std::vector<QRect> plätze;
    if (widget() == nullptr) return {};
    for (QObject* kind : widget()->children()) {
        auto* w = qobject_cast<QWidget*>(kind);
        // Marks of a drag lie above and let everything through.
        if (w == nullptr || w->isWindow() || w->testAttribute(Qt::WA_TransparentForMouseEvents)) continue;
        if (w->isHidden()) {
            versteckt.push_back(w);
            continue;
        }
        zu_sehen.push_back(w);
        plätze.push_back(w->geometry());
    }
    std::vector<QWidget*> kinder;
    for (const std::size_t i : Leseordnung(plätze)) kinder.push_back(zu_sehen[i]);
    kinder.insert(kinder.end(), versteckt.begin(), versteckt.end());
    return kinder;
}

QAccessibleInterface* Bodenzugang::child(int stelle) const {
    const auto kinder = Kinder();
    if (stelle < 0 || stelle >= static_cast<int>(kinder.size())) return nullptr;
    QWidget* kind = kinder[static_cast<std::size_t>(stelle)];
    Zugangsnamen_setzen(*kind);
    return QAccessible::queryAccessibleInterface(kind);
}

int Bodenzugang::indexOfChild(const QAccessibleInterface* kind) const {
    const auto kinder = Kinder();
    const auto fund = kind == nullptr ? kinder.end() : std::find(kinder.begin(), kinder.end(), kind->object());
    return fund == kinder.end() ? -1 : static_cast<int>(fund - kinder.begin());
}

Auswahlzugang::Auswahlzugang(QComboBox* feld) : QAccessibleWidget(feld, QAccessible::ComboBox) {}

QComboBox* Auswahlzugang::feld() const { return static_cast<QComboBox*>(widget()); }

// Both in one, since a change of the choice is told as a change of the name.
QString Auswahlzugang::text(QAccessible::Text welcher) const {
    QString gewählt = feld()->currentText();
    if (welcher == QAccessible::Value) return gewählt;
    if (welcher != QAccessible::Name) return QAccessibleWidget::text(welcher);
    const QString name = feld()->accessibleName();
    return name.isEmpty() || gewählt.isEmpty() ? name + gewählt : name + QStringLiteral(": ") + gewählt;
}

QAccessibleInterface* Auswahlzugang::child(int stelle) const {
    return stelle == 0 ? QAccessible::queryAccessibleInterface(feld()->view()) : nullptr;
}

int Auswahlzugang::indexOfChild(const QAccessibleInterface* kind) const {
    return kind != nullptr && kind->object() == feld()->view() ? 0 : -1;
}

QAccessible::State Auswahlzugang::state() const {
    QAccessible::State stand = QAccessibleWidget::state();
    stand.expandable = true;
    stand.expanded = feld()->view()->isVisible();
    stand.collapsed = !stand.expanded;
    return stand;
}

QStringList Auswahlzugang::actionNames() const { return {showMenuAction(), setFocusAction()}; }

void Auswahlzugang::doAction(const QString& name) {
    if (name != showMenuAction())
        QAccessibleWidget::doAction(name);
    else if (feld()->view()->isVisible())
        feld()->hidePopup();
    else
        feld()->showPopup();
}

Optionszugang::Optionszugang(QAbstractButton* knopf) : QAccessibleWidget(knopf, QAccessible::RadioButton) {}

QAccessible::State Optionszugang::state() const {
    QAccessible::State stand = QAccessibleWidget::state();
    stand.checkable = true;
    stand.checked = static_cast<QAbstractButton*>(widget())->isChecked();
    return stand;
}

QStringList Optionszugang::actionNames() const { return {toggleAction(), setFocusAction()}; }

void Optionszugang::doAction(const QString& name) {
    if (name != toggleAction())
        QAccessibleWidget::doAction(name);
    else
        static_cast<QAbstractButton*>(widget())->click();
}

Klickzugang::Klickzugang(QWidget* widget, Bauteil& teil) : QAccessibleWidget(widget, QAccessible::Button), teil_(&teil) {}

QStringList Klickzugang::actionNames() const { return {pressAction(), setFocusAction()}; }

void Klickzugang::doAction(const QString& name) {
    if (name != pressAction())
        QAccessibleWidget::doAction(name);
    else if (teil_ != nullptr)
        teil_->von_Hand([](Element& element) { Hand::klicken(element); });
}

Stufenzugang::Stufenzugang(QWidget* widget, Bauteil& teil) : QAccessibleWidget(widget, QAccessible::SpinBox), teil_(&teil) {}

void* Stufenzugang::interface_cast(QAccessible::InterfaceType art) {
    if (art == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
    return QAccessibleWidget::interface_cast(art);
}

QStringList Stufenzugang::actionNames() const { return {increaseAction(), decreaseAction(), setFocusAction()}; }

void Stufenzugang::doAction(const QString& name) {
    if (name == increaseAction())
        stellen(1);
    else if (name == decreaseAction())
        stellen(-1);
    else
        QAccessibleWidget::doAction(name);
}

void Stufenzugang::stellen(int richtung) {
    if (richtung == 0 || teil_ == nullptr) return;
    const int stufe = richtung > 0 ? Dreistufer::oben_Stufe : Dreistufer::unten_Stufe;
    teil_->von_Hand([stufe](Element& element) { Hand::schieben(element, stufe); });
}

}  // namespace tonkartei
