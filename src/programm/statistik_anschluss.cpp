#include "programm/anschluesse.hpp"
#include "statistik/statistikraum.hpp"

namespace tonkartei {

void Statistik_anschließen(Statistikraum& statistik, Tonkartei& fenster) {
    fenster.Menüleiste.Befehl("Statistik_anzeigen", [&statistik] { statistik.fenster.öffnen(); });
    statistik.fenster.offen.verbinden([&fenster](bool offen) { fenster.aktiv(!offen); });
}

}  // namespace tonkartei
