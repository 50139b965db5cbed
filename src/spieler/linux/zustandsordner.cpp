#include "spieler/zustandsordner.hpp"

#include <cstdlib>

#include "plattform/linux/systemruf.hpp"

namespace tonkartei::spieler {

Text Zustandsordner() {
    Text ordner;
    if (const char* zustand = std::getenv("XDG_STATE_HOME"); zustand && zustand[0] == '/') {
        ordner = zustand;
    } else if (const char* heim = std::getenv("HOME"); heim && heim[0] == '/') {
        ordner = Text(heim) + "/.local/state";
    } else {
        return {};
    }
    ordner += "/tonkartei/spieler/";
    return Ordner_kette_anlegen(ordner) ? ordner : Text();
}

}  // namespace tonkartei::spieler
