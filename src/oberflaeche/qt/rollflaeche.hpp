// A ground that may be larger than its place: it is moved under it by scroll bars, the wheel, and the focus, which is always
// brought into sight.
#pragma once

#include <QPoint>
#include <QSize>
#include <QWidget>

class QScrollBar;

namespace tonkartei {

class Rollfläche : public QWidget {
public:
    // Slim: only downward, with a narrow bar in a margin of its own at the right, whether it is needed or not.
    enum class Art { ganz, schmal };
    explicit Rollfläche(Art art = Art::ganz, QWidget* eltern = nullptr);

    QWidget* Boden() const noexcept { return boden_; }
    // The ground is at least so large, and fills the place.
    void Bedarf(QSize größe);
    // What is left beside the bars that a ground of that size needs.
    QSize frei(QSize bedarf) const;
    static constexpr int schmaler_Rand = 8;

protected:
    void resizeEvent(QResizeEvent* was) override;
    void wheelEvent(QWheelEvent* was) override;

private:
    int Dicke() const;
    void legen();
    void in_Sicht_bringen(const QWidget& widget);
    QScrollBar* Leiste(Qt::Orientation richtung);

    const Art art_;
    QWidget* boden_;
    QScrollBar *waagrecht_ = nullptr, *senkrecht_ = nullptr;  // once they are needed
    QSize bedarf_;
};

}  // namespace tonkartei
