// A control on the screen: holds its widget, makes it follow the model, and turns what happens to it into the hand's doings.
#pragma once

#include <QColor>
#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QRect>
#include <QWidget>
#include <functional>
#include <memory>

#include "oberflaeche/element.hpp"

class QContextMenuEvent;
class QKeyEvent;
class QMouseEvent;

namespace tonkartei {

class Fensterwidget;
struct Umfeld;

class Bauteil : public QObject {
public:
    Bauteil(Umfeld& umfeld, Fensterwidget& fenster, Element& element);
    ~Bauteil() override;

    // The kind's part; null for what makes no widget of its own (menu entries, hidden helpers).
    static std::unique_ptr<Bauteil> machen(Umfeld& umfeld, Fensterwidget& fenster, Element& element);

    Element& element() const noexcept { return element_; }
    // Null for the tray symbol.
    QWidget* widget() const noexcept { return widget_; }
    // Where children of a frame are put.
    virtual QWidget* Inneres() const noexcept { return widget_; }
    // Follows the model; bits of Änderung.
    void zeigen(unsigned änderung);

    // What is dragged from elsewhere in the program can be dropped on it just now.
    bool ist_Ziel() const { return element_.Abgelegt.hat_Hörer() && darf(); }

    // Works it for who has neither mouse nor keys, if it can be worked just now.
    void von_Hand(const std::function<void(Element&)>& tat);

    bool eventFilter(QObject* wer, QEvent* was) override;

protected:
    // Takes over the widget. Mouse and keys are watched on it, and on `fläche` if the mouse acts on another widget inside
    // it.
    void aufnehmen(QWidget* widget, QWidget* fläche = nullptr);
    virtual void Aussehen_zeigen();
    virtual void Lage_zeigen();
    virtual void Wert_zeigen() {}
    virtual void Zeilen_zeigen() {}
    // The line at a place of the mouse area; -1 none.
    virtual int Zeile_an(QPoint) const { return -1; }
    // Of a line in the mouse area; of all of it for -1.
    virtual QRect Platz_von(int zeile) const;
    // The widget lies bare on the ground below: a colour of its own must be filled in.
    virtual bool malt_Grund_nicht() const { return false; }
    // The widget tells clicks by itself.
    virtual bool klickt_selbst() const { return false; }
    // The left button went down there.
    virtual void gedrückt(QPoint) {}
    virtual void Farben_zeigen();
    // As it is drawn; invalid: none of its own.
    QColor Grundfarbe() const;

    Umfeld& umfeld_;
    Fensterwidget& fenster_;

private:
    void einordnen();
    void lesbare_Schrift(QPalette& farben) const;
    bool Maus(QMouseEvent& ereignis);
    bool Taste_gedrückt(QKeyEvent& ereignis);
    bool nach_Modell(const Taste& taste) const;
    bool Kontextmenü(const QContextMenuEvent& ereignis);
    void Fokus_bekommen(int grund);
    bool Ablage(QEvent& ereignis);
    QWidget* Zielwidget() const;
    void ziehen();
    bool darf() const;

    Element& element_;
    QPointer<QWidget> widget_;
    QPointer<QWidget> fläche_;
    QPoint druckpunkt_;
    bool unten_ = false;
};

// The key as handlers see it; false for keys that no handler is told of.
// Left and right are keys of option buttons alone, where they are the same as up and down.
bool Taste_aus(const QKeyEvent& ereignis, Taste& taste, bool option = false);

}  // namespace tonkartei
