#include "austausch/austausch.hpp"

#include "datenbank/datenbankraum.hpp"
#include "lieder/liederraum.hpp"
#include "wiedergabe/wiedergabe.hpp"

namespace tonkartei {

Austausch::Austausch(Datenbankraum& d, Kategorienraum& kategorien, Liederraum& lieder, Wiedergabe& wiedergabe,
                     Listenbereich& liste)
    : quelle(d.haus.modell, d.haus.kanäle, d.haus.plattform.Dateisystem, d.haus.plattform.Rechner, d.haus.fortschritt),
      sicherung(d, lieder, quelle),
      vergleich(d.haus, sicherung.auszug),
      abgleich(d, kategorien, lieder, quelle,
               {liste, lieder.austauschen, wiedergabe.Starter, lieder.mp3, d.haus.fortschritt}),
      auflösung(d, quelle, wiedergabe.Starter) {
    d.sitzung.vor_Wechsel.verbinden([this] {
        vergleich.ergebnis.entladen();
        abgleich.fenster.entladen();
        abgleich.liste.entladen();
    });
}

}  // namespace tonkartei
