#include "oberflaeche/qt/umfeld.hpp"

#include <QGuiApplication>

#include "oberflaeche/fenster.hpp"
#include "oberflaeche/qt/fensterwidget.hpp"

namespace tonkartei {

Umfeld::Umfeld(Ansicht& a) : ansicht(a), stapelt(QGuiApplication::platformName() != QLatin1String("offscreen")) {}

Umfeld::~Umfeld() = default;

bool Umfeld::erreichbar(const Fenster& f) const { return f.aktiv() && ansicht.erreichbar(f); }

Fensterwidget* Umfeld::widget(const Fenster& f) const {
    const auto eintrag = fenster.find(&f);
    return eintrag == fenster.end() ? nullptr : eintrag->second.get();
}

}  // namespace tonkartei
