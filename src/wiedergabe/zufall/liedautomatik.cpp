#include "wiedergabe/zufall/liedautomatik.hpp"

#include "datenbank/haus.hpp"
#include "kategorien/kategorienbereich.hpp"
#include "wiedergabe/wiedergabe.hpp"
#include "wiedergabe/wiedergabebereich.hpp"

namespace tonkartei {

Liedautomatik::Liedautomatik(Haus& haus, Album_Start& listenstart, Wiedergabe& wiedergabe, const Bereiche& bereiche)
    : Folge(bereiche.Lieder, haus.ansicht),
      Zufall(haus.modell, haus.einstellungen, wiedergabe.Zählung, haus.plattform.Rechner, bereiche.Lieder),
      Start(bereiche.Wiedergabe, bereiche.Lieder, Folge, Zufall, wiedergabe.Abspieler),
      Wechsel(haus.modell, haus.einstellungen, bereiche.Kategorien, haus.plattform.Rechner, haus.ansicht),
      Autoplay(haus.einstellungen, wiedergabe.Spieler, bereiche.Wiedergabe, Start, Wechsel),
      Zufalls_Playlist(haus, bereiche.Lieder, listenstart),
      Optionen(haus.einstellungen, haus.ansicht) {
    Wiedergabebereich& bereich = bereiche.Wiedergabe;
    Kategorienbereich& kategorien = bereiche.Kategorien;
    wiedergabe.Takt.Autoplay_Schritt.verbinden([this] { Autoplay.Schritt(); });
    bereich.Zufalls_Playlist.Klick.verbinden([this] { Zufalls_Playlist.erstellen(); });
    bereich.auto_Kat_Wechsel_Setup.Klick.verbinden([this] { Optionen.auto_Kat_Wechsel_Setup(); });

    kategorien.Auto_Wechsel_an = [&bereich, &einstellungen = haus.einstellungen] {
        return bereich.Autoplay.wert() && einstellungen.auto_Kat_Wechsel_Status;
    };
    kategorien.Auto_Wechsel_beenden.verbinden([&bereich] { bereich.auto_Kat_Wechsel.wert(false); });
    for (Kasten* kasten : {&bereich.Autoplay, &bereich.auto_Kat_Wechsel})
        kasten->Klick.verbinden([&kategorien] { kategorien.zeige_Kategorie_Farben(); });
}

}  // namespace tonkartei
