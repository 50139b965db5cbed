// A window on the screen: menu bar on top, below it the ground that the controls lie on. A part of another window is a
// child of the frame that it fills: it comes, goes and is painted with it.
#pragma once

#include <QElapsedTimer>
#include <QWidget>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "oberflaeche/qt/bauteil.hpp"
#include "oberflaeche/qt/umfeld.hpp"

namespace tonkartei {

class Fenster;
class Menüleiste;
class Rollfläche;
class Schleier;

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
    // The one with that widget; null: none, or its control is gone.
    Bauteil* bauteil_von(const QWidget& widget) const;
    // What everything but the menu bar lies on.
    const QWidget* boden() const noexcept { return boden_; }
    Fenster& fenster() const noexcept { return fenster_; }

    // It, or a window that it is a part of, has a ground of its own.
    bool eigener_Grund() const;
    // What is seen inside that frame, or without one in the window, where nothing lies on it.
    QColor Grund_unter(const Element* rahmen) const;
    // Whoever takes it in dies first: it is hidden until there is a place for it again.
    void lösen();
    // All that a drag from there can be dropped on, in the whole window.
    std::vector<QWidget*> Ziele(const Element& quelle);
    // The focus goes to the next control.
    void weitergeben() { focusNextChild(); }
    // Shows whether it waits for a dialog.
    void Sperre_zeigen();
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
    void leaveEvent(QEvent* was) override;
    void dragEnterEvent(QDragEnterEvent* was) override;
    void dragLeaveEvent(QDragLeaveEvent* was) override;
    void dropEvent(QDropEvent* was) override;
    void paintEvent(QPaintEvent* was) override;

private:
    void vormerken();
    bool läuft_noch_an();
    void Ziele_sammeln(const Element& quelle, std::vector<QWidget*>& ziele) const;
    void Vorgemerktes_zeigen();
    bool einsetzen();
    void Tabfolge(QWidget*& vorheriges) const;
    Fensterwidget& ganzes();
    void jedes_Teil(const std::function<void(Fensterwidget&, const Element& platz)>& tat) const;
    void Bauteile_machen();
    void Fenster_zeigen();
    void Teil_zeigen();
    void neu_färben();
    void Grund_zeigen();
    void Maße_zeigen();
    void Sichtbarkeit_zeigen();
    void Boden_legen();
    QSize auf_dem_Schirm(QSize innen) const;
    QPoint auf_dem_Schirm(QPoint stelle, QSize größe) const;
    int Menühöhe() const;
    void Wartenden_heben();
    void Kürzel_machen();
    bool darf() const { return umfeld_.hört() && umfeld_.erreichbar(fenster_); }

    Umfeld& umfeld_;
    Fenster& fenster_;
    const bool teil_;          // of another window
    Rollfläche* const rolle_;  // under the ground of what is no part
    QWidget* const boden_;
    Schleier* schleier_ = nullptr;  // once it is needed
    std::unique_ptr<Menüleiste> menü_;
    std::map<const Element*, std::unique_ptr<Bauteil>> bauteile_;
    std::size_t gesehene_ = 0;
    std::map<Element*, unsigned> geänderte_;
    Element* fokus_ = nullptr;
    Farbe grund_ = Farbe_Standard;
    bool alles_ = true, fenster_geändert_ = false, menü_geändert_ = false, vorgemerkt_ = false, gleicht_ab_ = false;
    bool gezeigt_ = false, vergeht_ = false;
    QElapsedTimer anlauf_;  // since it was wanted, until it is shown
    Qt::WindowFlags flaggen_;
};

// Takes the parts of windows out of a widget that dies; who owns them is somebody else.
void Teile_lösen(const QWidget& widget);

}  // namespace tonkartei
