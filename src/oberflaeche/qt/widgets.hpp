// The few widgets that Qt does not have as they are needed here. The measures use them as well, so that what is measured is
// what is shown.
#pragma once

#include <QCheckBox>
#include <QColor>
#include <QGroupBox>
#include <QLabel>
#include <QListView>
#include <QMargins>
#include <QRadioButton>
#include <QTabBar>
#include <vector>

#include "grundlagen/text.hpp"
#include "oberflaeche/elemente.hpp"

class QPainter;

namespace tonkartei {

// Boxes and option buttons that never change by themselves: the model says what is chosen. A caption in a colour of the
// user's own that can't be read where it stands gets a plate on which it can.
class Kastenbild : public QCheckBox {
public:
    using QCheckBox::QCheckBox;

protected:
    void nextCheckState() override {}
    void paintEvent(QPaintEvent* was) override;
};

class Optionsbild : public QRadioButton {
public:
    using QRadioButton::QRadioButton;

protected:
    void nextCheckState() override {}
};

// List that takes the focus without choosing a line.
class Listenbild : public QListView {
public:
    using QListView::QListView;
    QString leertext;  // said while there is no line

protected:
    void focusInEvent(QFocusEvent* was) override;
    void paintEvent(QPaintEvent* was) override;
};

// Label: plain text, cut with an ellipsis where it does not fit, in a frame for values.
class Schriftbild : public QLabel {
public:
    explicit Schriftbild(QWidget* eltern = nullptr);

    // With `zugriff` a "&" marks the access key of the buddy.
    void zeigen(const QString& text, bool zugriff);
    bool eingerahmt = false;
    bool ziffern = false;
    QColor füllung;  // invalid: none

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* was) override;

private:
    QMargins ränder() const;
    bool zugriff_ = false;
};

// Frame with a title; without one nothing is drawn, unless it is opaque.
class Rahmenbild : public QGroupBox {
public:
    explicit Rahmenbild(QWidget* eltern = nullptr);
    bool deckend = false;
    QColor füllung;
    // Of the title, and of what it lies on, where the frame's palette is that of its inside; invalid: the palette's.
    QColor titelfarbe, umgebung;

    // What the border takes from the inside.
    static QMargins ränder(bool mit_Titel, bool deckend, int titelhöhe);

protected:
    void paintEvent(QPaintEvent* was) override;
};

// Tab strip on a line that runs on behind the last tab.
class Reiterbild : public QTabBar {
public:
    explicit Reiterbild(QWidget* eltern = nullptr);

protected:
    void paintEvent(QPaintEvent* was) override;
};

// A bar of a chart.
class Diagrammbalken : public QWidget {
public:
    using QWidget::QWidget;
    QColor füllung;

protected:
    void paintEvent(QPaintEvent* was) override;
};

// A picture of the program, as large as fits, or lines on a grid; in a frame on its own small panel.
class Bildwidget : public QWidget {
public:
    explicit Bildwidget(Text name, QWidget* eltern = nullptr) : QWidget(eltern), name_(std::move(name)) {}
    void Name(const Text& name);
    bool eingerahmt = false;
    QColor füllung;  // invalid: none
    int spalten = 0, zeilen = 0;
    void Linien(std::vector<Linie> linien);

protected:
    void paintEvent(QPaintEvent* was) override;

private:
    void Raster_malen(QPainter& maler) const;
    void Linien_malen(QPainter& maler) const;

    Text name_;
    std::vector<Linie> linien_;
};

}  // namespace tonkartei
