#include "kategorien/kategorie_wahl.hpp"
#include "programm/anschluesse.hpp"
#include "wiedergabe/wiedergabe.hpp"

namespace tonkartei {
void Kategorien_anschließen(Kategorie_Wahl& wahl, const Modell& modell, Wiedergabe& wiedergabe, Tonkartei& fenster) {
    wahl.Datei_abspielen = [&wiedergabe](const Text& datei) { wiedergabe.Starter.starte_WinAmp_Datei(datei); };

    Hauptmenü& menü = fenster.Menüleiste;
    Kategorienbereich& bereich = fenster.Kategorien;
    menü.Wahl("Katrechts", &Einstellungen::Kategorie_Rechtsklick, 2);
    for (int n = 0; n <= Schemas_maximal; ++n) {
        const auto wählen = [&bereich, &menü, n] {
            bereich.Anz_Kat_Schemas_setzen(n);
            menü.nachführen();
        };
        menü.Befehl("Anz_Kat_Schemas", wählen, n);
    }
    menü.nur_Haken("Anz_Kat_Schemas", 0, Schemas_maximal, [&modell] { return int{modell.Anz_Kat_Schemas}; });
    menü.Befehl("Kat_Schema_zuweisen", [&bereich] { bereich.Schema_zuweisen_beginnen(); });
    menü.Befehl("Kat_Schema_Kurzbeschreibung", [&bereich] { bereich.Schema_beschreiben_beginnen(); });
    menü.Schalter("Kategorien_merken", &Einstellungen::Kategorien_merken);
    menü.Schalter("Kat_wechsel_bestätigen", &Einstellungen::Kategorie_wechsel_bestätigen);
    menü.Befehl("Kategorie_Farbe", [&bereich] { bereich.Farbe_ändern(&Einstellungen::Kategorie_Farbe); });
    menü.Befehl("automatische_Kategorie_Farbe",
                [&bereich] { bereich.Farbe_ändern(&Einstellungen::automatische_Kategorien_Farbe); });
}

}  // namespace tonkartei
