// What all windows of a painter share.
#pragma once

#include <QPoint>
#include <functional>
#include <map>
#include <memory>
#include <optional>

#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/qt/zielmarken.hpp"

namespace tonkartei {

class Element;
class Fenster;
class Fensterwidget;

struct Umfeld {
    explicit Umfeld(Ansicht& a);
    ~Umfeld();
    Umfeld(const Umfeld&) = delete;
    Umfeld& operator=(const Umfeld&) = delete;

    Ansicht& ansicht;
    // Above 0 while widgets follow the model: what they report then is no doing of the user's.
    int still = 0;
    // The painter is going; the model's objects may be gone.
    bool zu_Ende = false;
    // The drag under way: its source, and where it was dropped.
    Element* gezogen = nullptr;
    Element* gezogen_auf = nullptr;
    Zielmarken marken;
    // Where a pop-up menu comes up that no mouse has called.
    std::optional<QPoint> menüplatz;
    // The platform has windows lying on each other.
    const bool stapelt;
    // The window last brought to the front on the screen.
    const Fenster* vorderstes = nullptr;

    // Carries the user's doing to the model, under the guard: no exception crosses a frame of Qt's.
    void von_Hand(const std::function<void()>& tat) const {
        if (!hört()) return;
        ansicht.ausführen(tat);
    }
    bool hört() const { return still == 0 && !zu_Ende && !ansicht.endet(); }
    // A hand may work its controls: it is enabled, and no modal window blocks it.
    bool erreichbar(const Fenster& fenster) const;
    Fensterwidget* widget(const Fenster& fenster) const;
    // The foremost that is no part of another; null: none.
    const Fenster* vorderes() const;

    std::map<const Fenster*, std::unique_ptr<Fensterwidget>> fenster;
};

class Stille {
public:
    explicit Stille(Umfeld& umfeld) : umfeld_(umfeld) { ++umfeld_.still; }
    ~Stille() { --umfeld_.still; }
    Stille(const Stille&) = delete;
    Stille& operator=(const Stille&) = delete;

private:
    Umfeld& umfeld_;
};

}  // namespace tonkartei
