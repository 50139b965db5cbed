#include "probe/shell_probe.hpp"

#include "grundlagen/fehler.hpp"

namespace tonkartei {

void Shell_Probe::starten(const Text& befehl, int) {
    if (störungen_.trifft(Vorgang::starten)) throw Dateifehler(53, befehl);
    fenster_.Prozess_gestartet(befehl);
}

}  // namespace tonkartei
