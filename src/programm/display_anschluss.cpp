#include "display/displayraum.hpp"
#include "programm/anschluesse.hpp"

namespace tonkartei {

void Display_anschließen(Displayraum& display, Tonkartei& fenster) {
    fenster.Menüleiste.Befehl("Menü_Display_Setup", [&display] { display.setup.öffnen(); });
    display.setup.offen.verbinden([&fenster](bool offen) { fenster.aktiv(!offen); });
}

}  // namespace tonkartei
