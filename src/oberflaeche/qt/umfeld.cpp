#include "oberflaeche/qt/umfeld.hpp"

#include <QGuiApplication>

#include "oberflaeche/fenster.hpp"
#include "oberflaeche/qt/fensterwidget.hpp"

namespace tonkartei {

Umfeld::Umfeld(Ansicht& a) : ansicht(a), stapelt(QGuiApplication::platformName() != QLatin1String("offscreen")) {}

Umfeld::~Umfeld() = default;

bool Umfeld::erreichbar(const Fenster& f) const {
    for (const Fenster* eines = &f; eines != nullptr; eines = eines->Elternfenster())
        if (!eines->aktiv()) return false;
    return ansicht.erreichbar(f);
}

const Fenster* Umfeld::vorderes() const {
    for (const Fenster* eines : ansicht.fenster())
        if (eines->Elternfenster() == nullptr) return eines;
    return nullptr;
}

Fensterwidget* Umfeld::widget(const Fenster& f) const {
    const auto eintrag = fenster.find(&f);
    return eintrag == fenster.end() ? nullptr : eintrag->second.get();
}

}  // namespace tonkartei
