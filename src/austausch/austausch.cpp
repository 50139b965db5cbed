#include "austausch/austausch.hpp"

#include "datenbank/datenbankraum.hpp"
#include "lieder/liederraum.hpp"
#include "wiedergabe/wiedergabe.hpp"

namespace tonkartei {

Austausch::Austausch(Datenbankraum& d, Kategorienraum& kategorien, Liederraum& lieder, Wiedergabe& wiedergabe,
                     Listenbereich& liste)
    : quelle(d.haus),
      sicherung(d, lieder, quelle),
      vergleich(d.haus, lieder.hinzufügen.auszug),
      abgleich(d, kategorien, lieder, quelle,
               {liste, lieder.austauschen, wiedergabe.Starter, lieder.mp3, d.haus.fortschritt}),
      auflösung(d, quelle, wiedergabe.Starter) {
    // They compare with the collection that is left.
    d.sitzung.vor_Wechsel.verbinden([this] { entladen(); });
    // A collection newly made leaves its predecessor without that step. The categories that songs are mapped to and the
    // ignore list are the predecessor's; the outcome of a comparison by file may stay, to be written down as a request.
    d.sitzung.geladen.verbinden([this](bool) { abgleich.entladen(); });
}

void Austausch::entladen() {
    vergleich.ergebnis.entladen();
    abgleich.entladen();
}

}  // namespace tonkartei
