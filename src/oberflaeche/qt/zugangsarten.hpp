// The interfaces to assistive technology of what Qt has no widget for.
#pragma once

#include <QAccessibleWidget>
#include <QPointer>
#include <vector>

#include "oberflaeche/qt/bauteil.hpp"

class QAbstractButton;
class QComboBox;

namespace tonkartei {

// A window, a frame, the ground between them: its parts come in the order of the screen.
class Bodenzugang : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;
    int childCount() const override { return static_cast<int>(Kinder().size()); }
    QAccessibleInterface* child(int stelle) const override;
    int indexOfChild(const QAccessibleInterface* kind) const override;

private:
    // What is hidden comes last: it has no place.
    std::vector<QWidget*> Kinder() const;
};

// A drop-down list: Qt's own is called by its chosen line alone and finds its name by a label only.
class Auswahlzugang : public QAccessibleWidget {
public:
    explicit Auswahlzugang(QComboBox* feld);
    QString text(QAccessible::Text welcher) const override;
    int childCount() const override { return 1; }
    QAccessibleInterface* child(int stelle) const override;
    int indexOfChild(const QAccessibleInterface* kind) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString& name) override;

private:
    QComboBox* feld() const;
};

// An option button: it lets the model do the excluding, and Qt takes it for a check box.
class Optionszugang : public QAccessibleWidget {
public:
    explicit Optionszugang(QAbstractButton* knopf);
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString& name) override;
};

// A label that does something when it is clicked.
class Klickzugang : public QAccessibleWidget {
public:
    Klickzugang(QWidget* widget, Bauteil& teil);
    QStringList actionNames() const override;
    void doAction(const QString& name) override;

private:
    QPointer<Bauteil> teil_;
};

// The up-down switch: rests at 0, 1 is up and -1 down.
class Stufenzugang : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    Stufenzugang(QWidget* widget, Bauteil& teil);
    void* interface_cast(QAccessible::InterfaceType art) override;
    // Its arrows are its own doing.
    int childCount() const override { return 0; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QVariant currentValue() const override { return 0; }
    void setCurrentValue(const QVariant& wert) override { stellen(wert.toInt()); }
    QVariant maximumValue() const override { return 1; }
    QVariant minimumValue() const override { return -1; }
    QVariant minimumStepSize() const override { return 1; }

private:
    void stellen(int richtung);
    QPointer<Bauteil> teil_;
};

}  // namespace tonkartei
