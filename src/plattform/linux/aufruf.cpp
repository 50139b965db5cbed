#include "plattform/linux/aufruf.hpp"

#include <cstdlib>

namespace tonkartei {

Text Aufruf::Hindernis() {
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        const char* wert = std::getenv(name);
        if (wert != nullptr && *wert != '\0') return {};
    }
    return "kein Bildschirm da (weder DISPLAY noch WAYLAND_DISPLAY ist gesetzt)";
}

}  // namespace tonkartei
