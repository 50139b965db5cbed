#include "alben/albenraum.hpp"
#include "programm/anschluesse.hpp"
#include "wiedergabe/wiedergabe.hpp"

namespace tonkartei {

void Alben_anschließen(Albenraum& alben, Wiedergabe& wiedergabe, Tonkartei& fenster) {
    alben.start.starte_WinAmp_Liste = [&wiedergabe](const Text& datei) { wiedergabe.Starter.starte_WinAmp_Liste(datei); };
    fenster.Menüleiste.Befehl("Menü_starte_Album", [&alben] { alben.befehle.Menü_starte_Album(); });
}

}  // namespace tonkartei
