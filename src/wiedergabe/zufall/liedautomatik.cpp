#include "wiedergabe/zufall/liedautomatik.hpp"

#include "datenbank/einstellungen.hpp"
#include "kategorien/kategorienbereich.hpp"
#include "plattform/plattform.hpp"
#include "wiedergabe/wiedergabe.hpp"
#include "wiedergabe/wiedergabebereich.hpp"

namespace tonkartei {

Liedautomatik::Liedautomatik(Modell& modell, Einstellungen& einstellungen, const Plattform& plattform, Ansicht& ansicht,
                             Wiedergabe& wiedergabe, Listenbereich& lieder, Kategorienbereich& kategorien,
                             Wiedergabebereich& bereich)
    : Folge(lieder, ansicht),
      Zufall(modell, einstellungen, wiedergabe.Zählung, plattform.Rechner, lieder),
      Start(bereich, lieder, Folge, Zufall, wiedergabe.Zählung),
      Wechsel(modell, einstellungen, kategorien, plattform.Rechner, ansicht),
      Autoplay(einstellungen, wiedergabe.Spieler, bereich, lieder, Folge, Wechsel),
      Zufallsliste(modell, einstellungen, lieder, plattform.Rechner, ansicht),
      Optionen(modell, einstellungen, ansicht) {
    wiedergabe.Takt.Autoplay_Schritt.verbinden([this] { Autoplay.Schritt(); });
    bereich.Zufalls_Playlist.Klick.verbinden([this] { Zufallsliste.erstellen(); });
    bereich.auto_Kat_Wechsel_Setup.Klick.verbinden([this] { Optionen.auto_Kat_Wechsel_Setup(); });

    kategorien.Auto_Wechsel_an = [&bereich, &einstellungen] {
        return bereich.Autoplay.wert() && einstellungen.auto_Kat_Wechsel_Status;
    };
    kategorien.Auto_Wechsel_beenden.verbinden([&bereich] { bereich.auto_Kat_Wechsel.wert(false); });
    for (Kasten* kasten : {&bereich.Autoplay, &bereich.auto_Kat_Wechsel})
        kasten->Klick.verbinden([&kategorien] { kategorien.zeige_Kategorie_Farben(); });
}

}  // namespace tonkartei
