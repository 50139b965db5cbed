// Menus of the model as Qt menus: a window's bar, or the body of a pop-up menu.
#pragma once

#include <QPoint>
#include <memory>
#include <vector>

class QMenuBar;
class QPixmap;
class QWidget;

namespace tonkartei {

class Menü;
class Menüpunkt;
struct Umfeld;

class Menüleiste {
public:
    Menüleiste(Umfeld& umfeld, const Menü& menü, QWidget* eltern);
    // Follows captions, check marks and entries that came or went.
    void zeigen();
    QMenuBar* leiste() const noexcept { return leiste_; }

private:
    Umfeld& umfeld_;
    const Menü& menü_;
    QMenuBar* leiste_;
};

// A pop-up menu with the entries of `wurzel`, shown at the mouse. The entry that was chosen, or null.
Menüpunkt* Kontextmenü_zeigen(const Menüpunkt& wurzel, QPoint wo, QWidget* eltern);
// The same menu as it would come up, without showing it; submenus stay shut.
QPixmap Menübild(const Menüpunkt& wurzel);

}  // namespace tonkartei
