#include "albenverwaltung/albenverwaltung.hpp"
#include "lieder/liederraum.hpp"
#include "programm/anschluesse.hpp"

namespace tonkartei {

void Albenverwaltung_anschließen(Albenverwaltung& verwaltung, Liederraum& lieder, Tonkartei& fenster) {
    lieder.nachrücken.Alben_geändert.verbinden([&verwaltung] { verwaltung.fenster.aktualisieren(); });
    Hauptmenü& menü = fenster.Menüleiste;
    menü.Befehl("zeige_Alben_Verwaltung", [&verwaltung] { verwaltung.zeige_Alben_Verwaltung(); });
    menü.Befehl("Alben_Verwaltung_zentrieren", [&verwaltung] { verwaltung.Alben_Verwaltung_zentrieren(); });
    menü.Befehl("Lieder_add_to_Album", [&verwaltung] { verwaltung.Lieder_add_to_Album(); });
    // A line of the albums carries no song.
    fenster.Lieder.Liste.Ziehen_beginnt.verbinden([&verwaltung, &bereich = fenster.Lieder] {
        if (bereich.Datenbank_Modus.wert() == 0 && verwaltung.Alben_offen()) bereich.Liste.Ziehmarke = "Lied";
    });
}

}  // namespace tonkartei
