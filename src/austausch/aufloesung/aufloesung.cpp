#include "austausch/aufloesung/aufloesung.hpp"

#include "datenbank/datenbankraum.hpp"

namespace tonkartei {

Auflösung::Auflösung(Datenbankraum& d, Quell_Datenbank& quelle, WinAmp_Starter& starter)
    : arbeit(d.haus.modell, d.haus.plattform.Dateisystem, d.haus.plattform.Shell, d.haus.fortschritt),
      fenster(d.haus.ansicht, d.haus.modell, d.haus.plattform.Dateisystem, arbeit),
      vergleich(d.haus.ansicht, d.haus.modell, starter),
      abgleich(d.haus.modell, d.öffnen, quelle, vergleich, d.haus.fortschritt) {}

}  // namespace tonkartei
