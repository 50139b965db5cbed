#include "alben/albenraum.hpp"
#include "programm/anschluesse.hpp"
#include "programm/tonkartei.hpp"
#include "wiedergabe/wiedergabe.hpp"
#include "wiedergabe/zufall/liedautomatik.hpp"

namespace tonkartei {

void Alben_anschließen(Albenraum& alben, Wiedergabe& wiedergabe, Liedautomatik& automatik, Tonkartei& fenster) {
    fenster.Lieder.Alben_öffnen = [&alben] { return alben.befehle.Ansicht_öffnen(); };
    alben.start.starte_WinAmp_Liste = [&wiedergabe](const Text& datei) { wiedergabe.Starter.starte_WinAmp_Liste(datei); };
    automatik.Zufallsliste.Liste_starten = [&alben](const std::vector<Long>& lieder) { alben.start.starte_Lieder(lieder); };
    fenster.Menüleiste.Befehl("Menü_starte_Album", [&alben] { alben.befehle.Menü_starte_Album(); });
}

}  // namespace tonkartei
