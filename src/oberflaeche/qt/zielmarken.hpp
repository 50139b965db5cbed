// Borders around what takes a drag that is under way: thin ones where it may go, a clear one where it would fall now.
#pragma once

#include <QPointer>
#include <QWidget>
#include <vector>

namespace tonkartei {

class Zielmarken {
public:
    Zielmarken() = default;
    ~Zielmarken();
    Zielmarken(const Zielmarken&) = delete;
    Zielmarken& operator=(const Zielmarken&) = delete;

    // The drag is over that widget; it is over no other any more.
    void zeigen(QWidget& ziel);
    void verlassen();
    void andeuten(const std::vector<QWidget*>& ziele);
    // The drag is over.
    void alle_weg();

private:
    QPointer<QWidget> marke_;
    std::vector<QPointer<QWidget>> angedeutete_;
};

}  // namespace tonkartei
