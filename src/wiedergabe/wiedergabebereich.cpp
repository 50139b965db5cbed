#include "wiedergabe/wiedergabebereich.hpp"

#include "wiedergabe/fernsteuerung.hpp"

namespace tonkartei {

// Access keys are shared with the whole main window. Alt+N stays free: the button of the random choice turns into the one of
// the next song while autoplay moves down the list.
Wiedergabebereich::Wiedergabebereich(Fenster& fenster)
    : Lied_starten(fenster, "Lied_starten", "Lied &starten"),
      Lied_kopieren(fenster, "Lied_kopieren", "Lied &kopieren..."),
      Lied_löschen(fenster, "Lied_löschen", "Lied lös&chen"),
      Zufallslied_starten(fenster, "Zufallslied_starten", "&Random"),
      Zufalls_Playlist(fenster, "Zufalls_Playlist", "Random-Liste"),
      add_to_Playlist(fenster, "add_to_Playlist", "--> Playlist"),
      Autoplay(fenster, "Autoplay", "Auto&play"),
      Autoplay_Random(fenster, "Autoplay_Random", "Rando&m"),
      auto_Kat_Wechsel(fenster, "auto_Kat_Wechsel", "automatisch Kategorie &wechseln"),
      auto_Kat_Wechsel_Setup(fenster, "auto_Kat_Wechsel_Setup", "...") {
    Lied_starten.tooltip("spielt das gewählte Lied mit WinAmp");
    Lied_kopieren.tooltip("speichert eine Kopie des gewählten Liedes unter seinem Namen");
    Lied_löschen.tooltip("löscht das gewählte Lied aus der Datenbank");
    Zufallslied_starten.tooltip("spielt ein selten gehörtes Lied aus der Liste");
    Zufalls_Playlist.tooltip("stellt eine Playlist aus selten gehörten Liedern der Liste zusammen");
    add_to_Playlist.tooltip("nimmt das gewählte Lied in die Playlist auf");
    Autoplay.tooltip("spielt nach jedem Lied gleich das nächste");
    Autoplay_Random.tooltip("wählt das nächste Lied durch Zufall statt der Reihe nach");
    auto_Kat_Wechsel.tooltip("wechselt beim Autoplay nach einigen Liedern die Kategorie");
    auto_Kat_Wechsel.sichtbar(false);
    auto_Kat_Wechsel_Setup.tooltip("stellt ein, nach wievielen Liedern die Kategorie gewechselt wird");
    auto_Kat_Wechsel_Setup.Vorlesename = "Kategoriewechsel einstellen";
    auto_Kat_Wechsel_Setup.klein = true;
}

Knoten Wiedergabebereich::anordnung(Fernsteuerung& fernsteuerung) {
    return Spalte({
        Überlagerung({Zeile({Gitter(3, {Knoten(Lied_starten).dehnen(1), Knoten(Lied_kopieren).dehnen(1),
                                        Knoten(Lied_löschen).dehnen(1), Knoten(Zufallslied_starten).dehnen(1),
                                        Knoten(Zufalls_Playlist).dehnen(1), Knoten(add_to_Playlist).dehnen(1)})
                                 .dehnen(1),
                             fernsteuerung.Markenknoten()}),
                      fernsteuerung.Tafelknoten()}),
        Zeile({Autoplay, Autoplay_Random, Feder(), Knoten(auto_Kat_Wechsel).Platz_halten(), auto_Kat_Wechsel_Setup}),
    });
}

}  // namespace tonkartei
