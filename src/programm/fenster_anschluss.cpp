#include "programm/anschluesse.hpp"

namespace tonkartei {
namespace {

void Listeneinstellungen(Einstellungen& e, Hauptmenü& menü) {
    menü.Wahl("DblClk", &Einstellungen::Liste_Doppelklick, 3);
    menü.Wahl("Liste_aktualisieren", &Einstellungen::Listensuche_Anzahl_Buchstaben, 4);
    menü.Befehl("Listensuche_unvisible", [&e, &menü] {
        e.bei_Listensuche_sichtbar = !e.bei_Listensuche_sichtbar;
        menü.nachführen();
    });
    menü.Haken("Listensuche_unvisible", [&e] { return !e.bei_Listensuche_sichtbar; });
    menü.Schalter("Menü_Liste2_animiert", &Einstellungen::Alben_Liste_animiert);
}

void Allgemeines(Einstellungen& e, Tonkartei& fenster) {
    Hauptmenü& menü = fenster.Menüleiste;
    for (const int n : {1, 2}) {
        const auto wählen = [&e, &menü, n] {
            e.Lieder_Namen_lesen = n == 1;
            menü.nachführen();
        };
        menü.Befehl("LN_lesen", wählen, n);
    }
    menü.nur_Haken("LN_lesen", 1, 2, [&e] { return e.Lieder_Namen_lesen ? 1 : 2; });
    menü.Wahl("Fenster_minimieren", &Einstellungen::Fenster_minimieren, 3);
    menü.Schalter("Systray_always", &Einstellungen::Systray_immer_sichtbar,
                  [&e, &fenster] { fenster.SysTray.sichtbar(e.Systray_immer_sichtbar); });
    menü.Schalter("Mousemove_markierung", &Einstellungen::Objekt_Markierung_aktiv);
    menü.Schalter("Position_merken", &Einstellungen::Position_merken);
    menü.Schalter("Papierkorb_löschen", &Einstellungen::Papierkorb);
    const auto Markierungsfarbe = [&](const char* name, Long Einstellungen::*farbe) {
        menü.Befehl(name, [&e, &ansicht = fenster.ansicht(), farbe] {
            if (const auto neue = ansicht.Farbe_wählen(e.*farbe)) e.*farbe = *neue;
        });
    };
    Markierungsfarbe("markierte_Farbe", &Einstellungen::Markierte_Farbe);
    Markierungsfarbe("markierte_Listen_Farbe", &Einstellungen::Markierte_Listen_Farbe);
}

}  // namespace

void Fenster_anschließen(Haus& haus, Tonkartei& fenster) {
    Listeneinstellungen(haus.einstellungen, fenster.Menüleiste);
    Allgemeines(haus.einstellungen, fenster);
    fenster.Menüleiste.Befehl("zentrieren", [&fenster] { fenster.zentrieren(); });
    fenster.Menüleiste.Befehl("MP_Beenden", [&fenster] { fenster.entladen(); });
}

}  // namespace tonkartei
