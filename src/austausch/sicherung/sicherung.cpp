#include "austausch/sicherung/sicherung.hpp"

#include "datenbank/datenbankraum.hpp"
#include "lieder/liederraum.hpp"

namespace tonkartei {

Sicherung::Sicherung(Datenbankraum& d, Liederraum& lieder, Quell_Datenbank& quelle)
    : portionsdatei(d.haus.modell, d.haus.kanäle, d.haus.ansicht),
      datenbank(d.haus.modell, d.haus.ansicht, d.haus.plattform.Dateisystem, portionsdatei, lieder.hinzufügen.auszug),
      verzeichnis(d.haus.modell, d.haus.kanäle, d.haus.plattform.Dateisystem, d.haus.fortschritt),
      erstellung(d.haus.ansicht, d.haus.plattform.Rechner, portionsdatei, datenbank),
      portionen(d.haus.modell, verzeichnis, quelle, erstellung, d.haus.fortschritt),
      befehle(d.haus.modell, d.haus.fortschritt, verzeichnis, quelle) {}

}  // namespace tonkartei
