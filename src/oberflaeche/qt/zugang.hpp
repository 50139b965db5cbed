// What assistive technology sees of the windows: names, roles and values where Qt does not know them, and the order of the
// screen. All of it is made when it is asked for; without anyone who asks it costs nothing.
#pragma once

#include <QAccessible>

class QWidget;

namespace tonkartei {

class Bauteil;

// Lives with the application object. Whoever begins to ask finds all names set.
class Zugangswache : public QAccessible::ActivationObserver {
public:
    Zugangswache();
    ~Zugangswache() override;
    Zugangswache(const Zugangswache&) = delete;
    Zugangswache& operator=(const Zugangswache&) = delete;
    void accessibilityActiveChanged(bool aktiv) override;
};

// The names follow the model. Each of these makes Qt ask for the widget's interface, so none may come while one is made.
void Zugangsnamen_setzen(const Bauteil& teil);
void Zugangsnamen_setzen(const QWidget& widget);

}  // namespace tonkartei
