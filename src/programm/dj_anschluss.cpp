#include "dj/djraum.hpp"
#include "programm/anschluesse.hpp"
#include "programm/kontextmenues.hpp"

namespace tonkartei {

void DJ_anschließen(DJ_Raum& dj, Haus& haus, Kontextmenüs& menüs, Tonkartei& fenster) {
    DJModus& desk = dj.fenster;
    fenster.Menüleiste.Befehl("starte_DJ_Modus", [&desk, &haus, &fenster] {
        if (haus.modell.Datenbank_offen) desk.öffnen(fenster.lage());
    });
    // Locked as well, so that nothing reaches the collection whose numbers the desk holds.
    desk.offen = [&desk, &fenster](bool offen) {
        fenster.Vertreter = offen ? &desk : nullptr;
        fenster.aktiv(!offen);
        if (offen)
            fenster.verstecken();
        else
            fenster.zeigen();
    };
    const auto Befehl = [&desk](void (Listen_Dateien::*befehl)()) {
        return [&desk, befehl] {
            if (desk.sichtbar()) (desk.Dateien.*befehl)();
        };
    };
    menüs.füllen(
        "DJ_Listen_Menü",
        {{"Liste_laden_Playlist", "&Playlist laden...", ohne_Index, Befehl(&Listen_Dateien::Liste_laden_Playlist), {}},
         {"Liste_laden_Album", "&Album laden...", ohne_Index, Befehl(&Listen_Dateien::Liste_laden_Album), {}}});
    desk.Listen.laden.verbinden([&menüs] { menüs.zeigen("DJ_Listen_Menü"); });
    // Hidden players that nobody drives any more could not be stopped by anyone. The collection is rescued first.
    haus.ansicht.vor_dem_Absturz = [&desk, vorher = haus.ansicht.vor_dem_Absturz] {
        Text gerettet = vorher ? vorher() : Text();
        desk.Spieler_beenden();
        return gerettet;
    };
}

}  // namespace tonkartei
