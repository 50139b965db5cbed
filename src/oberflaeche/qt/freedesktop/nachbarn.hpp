// What this desktop has beside windows: the user's colours, media keys and panels, notifications. The name of this header is
// the same for every desktop that a program can be built for.
#pragma once

#include <optional>

#include "oberflaeche/qt/ansicht_qt.hpp"
#include "oberflaeche/qt/freedesktop/farbwunsch.hpp"
#include "oberflaeche/qt/freedesktop/mitteilung.hpp"
#include "oberflaeche/qt/freedesktop/mpris.hpp"
#include "oberflaeche/qt/qt_umgebung.hpp"

namespace tonkartei {

class Nachbarn {
public:
    // Before the first window, which is to have the right colours at once.
    explicit Nachbarn(Qt_Umgebung& qt) : farben_([&qt](Farbschema schema) { qt.Schema_setzen(schema); }) {}

    // Behind the start, which must not wait for them; `ansicht` lives as long.
    void anschließen(Ansicht_Qt& ansicht) {
        medien_.emplace(ansicht.Medien, [&ansicht](const std::function<void()>& befehl) { ansicht.ausführen(befehl); });
        if (medien_->spricht()) ansicht.bei_Medien = [this](const Medienstand& stand) { medien_->zeigen(stand); };
        ansicht.bei_Mitteilung = [this](const Text& titel, const Text& text) { mitteilung_.zeigen(titel, text); };
    }

private:
    const Farbwunsch farben_;
    std::optional<Mpris> medien_;
    Mitteilung mitteilung_;
};

}  // namespace tonkartei
