#include "datenbank/datenbankraum.hpp"
#include "programm/anschluesse.hpp"

namespace tonkartei {

void Datenbank_anschließen(Datenbankraum& datenbank, Tonkartei& fenster) {
    Sitzung& sitzung = datenbank.sitzung;
    sitzung.geladen.verbinden([&sitzung, &fenster](bool Startkategorien_setzen) {
        sitzung.Datenbank_Liste_nachführen();
        fenster.Datenbank_geladen(Startkategorien_setzen);
    });
    fenster.Datenbank_gewählt.verbinden([&sitzung](const Text& pfad) { sitzung.zuletzt_geöffnete_wählen(pfad); });

    Hauptmenü& menü = fenster.Menüleiste;
    menü.Befehl("Datenbank_neu", [&sitzung] { sitzung.Datenbank_erstellen(true, true); });
    menü.Befehl("öffne_Datenbank",
                [&datenbank] { datenbank.sitzung.öffne_Datenbank_Verzeichnis(datenbank.öffnen.Dialog()); });
    menü.Befehl("Menü_schreibe_Datenbank", [&sitzung] { sitzung.speichern_von_Hand(); });
}

}  // namespace tonkartei
