#include "datenbank/datenbankraum.hpp"
#include "dj/alt/djraum_alt.hpp"
#include "programm/anschluesse.hpp"
#include "wiedergabe/wiedergabe.hpp"

namespace tonkartei {

void DJ_alt_anschließen(DJ_alt_Raum& dj, Datenbankraum& datenbank, Wiedergabe& wiedergabe, Tonkartei& fenster) {
    DJ_Modus& desk = dj.fenster;
    Haus& haus = datenbank.haus;
    fenster.Menüleiste.Befehl("starte_DJ_Modus_alt", [&desk, &haus] {
        if (haus.modell.Datenbank_offen) desk.starten();
    });
    desk.offen = [&desk, &fenster, &spieler = wiedergabe.Spieler](bool offen) {
        fenster.Vertreter = offen ? &desk : nullptr;
        // Locked as well, so that nothing reaches the collection whose numbers the desk holds.
        fenster.aktiv(!offen);
        if (!offen) return fenster.zeigen();
        fenster.verstecken();
        fenster.Wiedergabe.Autoplay.wert(false);
        spieler.schließen();
    };
    datenbank.sitzung.geladen.verbinden([&desk](bool) { desk.Wünsche.andere_Datenbank(); });
    // Hidden players that nobody drives any more could not be stopped by anyone. The collection is rescued first.
    haus.ansicht.vor_dem_Absturz = [&desk, vorher = haus.ansicht.vor_dem_Absturz] {
        Text gerettet = vorher ? vorher() : Text();
        desk.Spieler_beenden();
        return gerettet;
    };
}

}  // namespace tonkartei
