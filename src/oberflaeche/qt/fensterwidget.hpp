// A window on the screen: menu bar on top, below it the ground that the controls lie on.
#pragma once

#include <QWidget>
#include <map>
#include <memory>

#include "oberflaeche/qt/bauteil.hpp"
#include "oberflaeche/qt/umfeld.hpp"

namespace tonkartei {

class Fenster;
class Menüleiste;

class Fensterwidget : public QWidget {
public:
    Fensterwidget(Umfeld& umfeld, Fenster& fenster);
    ~Fensterwidget() override;

    // Notes what changed; it is shown by `abgleichen`, which comes by itself before the next paint.
    void Fenster_merken();
    void Element_merken(Element& element, unsigned änderung);
    void Fokus_merken(Element& element);
    // Shows all that was noted. True when there was something.
    bool abgleichen();

    QWidget* Boden_für(const Element& element) const;
    Bauteil* bauteil(const Element& element) const;
    Fenster& fenster() const noexcept { return fenster_; }

    // It, or a window that it is a part of, has a ground of its own.
    bool eigener_Grund() const;
    // What is seen inside that frame, or without one in the window, where nothing lies on it.
    QColor Grund_unter(const Element* rahmen) const;
    // What lies in the frame gets colours anew.
    void Inhalt_neu_färben(const Element& rahmen);

protected:
    bool event(QEvent* was) override;
    void closeEvent(QCloseEvent* was) override;
    void moveEvent(QMoveEvent* was) override;
    void resizeEvent(QResizeEvent* was) override;
    void changeEvent(QEvent* was) override;
    void keyPressEvent(QKeyEvent* was) override;
    void mouseMoveEvent(QMouseEvent* was) override;
    void dragEnterEvent(QDragEnterEvent* was) override;
    void dropEvent(QDropEvent* was) override;
    void paintEvent(QPaintEvent* was) override;

private:
    void vormerken();
    void Bauteile_machen();
    void Fenster_zeigen();
    void Grund_zeigen();
    void Maße_zeigen();
    void Sichtbarkeit_zeigen();
    void Boden_legen();
    int Menühöhe() const;
    bool darf() const { return umfeld_.hört() && umfeld_.erreichbar(fenster_); }

    Umfeld& umfeld_;
    Fenster& fenster_;
    QWidget* boden_ = nullptr;
    std::unique_ptr<Menüleiste> menü_;
    std::map<const Element*, std::unique_ptr<Bauteil>> bauteile_;
    std::size_t gesehene_ = 0;
    std::map<Element*, unsigned> geänderte_;
    Element* fokus_ = nullptr;
    Farbe grund_ = Farbe_Standard;
    bool alles_ = true, fenster_geändert_ = false, menü_geändert_ = false, vorgemerkt_ = false, gleicht_ab_ = false;
    bool gezeigt_ = false;
    Qt::WindowFlags flaggen_;
};

}  // namespace tonkartei
