// What lies over a window that waits for a dialog: it pales, and a click tells.
#pragma once

#include <QWidget>
#include <functional>

namespace tonkartei {

class Schleier : public QWidget {
public:
    Schleier(QWidget* eltern, std::function<void()> geklickt);

protected:
    void paintEvent(QPaintEvent* was) override;
    void mousePressEvent(QMouseEvent* was) override;
    // Follows the window's size.
    bool eventFilter(QObject* wer, QEvent* was) override;

private:
    std::function<void()> geklickt_;
};

}  // namespace tonkartei
