// What this desktop has beside windows: the user's colours. The name of this header is the same for every desktop that a
// program can be built for.
#pragma once

#include "oberflaeche/qt/ansicht_qt.hpp"
#include "oberflaeche/qt/qt_umgebung.hpp"

namespace tonkartei {

class Nachbarn {
public:
    explicit Nachbarn(Qt_Umgebung& qt);
    void anschließen(Ansicht_Qt&) {}
};

}  // namespace tonkartei
