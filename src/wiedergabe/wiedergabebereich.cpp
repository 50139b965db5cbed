#include "wiedergabe/wiedergabebereich.hpp"

#include "wiedergabe/spielzaehlung.hpp"

namespace tonkartei {

// Access keys are shared with the whole main window. Alt+N stays free: the button of the random choice turns into the one of
// the next song while autoplay moves down the list.
Wiedergabebereich::Wiedergabebereich(Fenster& fenster, Spielzählung& zählung)
    : Lied_starten(fenster, "Lied_starten", "Lied &starten"),
      Lied_kopieren(fenster, "Lied_kopieren", "Lied &kopieren..."),
      Lied_löschen(fenster, "Lied_löschen", "Lied lös&chen"),
      Zufallslied_starten(fenster, "Zufallslied_starten", "&Random"),
      Zufalls_Playlist(fenster, "Zufalls_Playlist", "Random-Liste"),
      add_to_Playlist(fenster, "add_to_Playlist", "--> Playlist"),
      Autoplay(fenster, "Autoplay", "Auto&play"),
      Autoplay_Random(fenster, "Autoplay_Random", "Rando&m"),
      zählung_(zählung) {
    Lied_starten.tooltip("spielt das gewählte Lied mit WinAmp");
    Lied_kopieren.tooltip("speichert eine Kopie des gewählten Liedes unter seinem Namen");
    Lied_löschen.tooltip("löscht das gewählte Lied aus der Datenbank");
    Zufallslied_starten.tooltip("spielt ein selten gehörtes Lied aus der Liste");
    Zufalls_Playlist.tooltip("stellt eine Playlist aus selten gehörten Liedern der Liste zusammen");
    add_to_Playlist.tooltip("nimmt das gewählte Lied in die Playlist auf");
    Autoplay.tooltip("spielt nach jedem Lied gleich das nächste");
    Autoplay_Random.tooltip("wählt das nächste Lied durch Zufall statt der Reihe nach");
    // Their work is not there yet.
    for (Element* element : {static_cast<Element*>(&Zufallslied_starten), static_cast<Element*>(&Zufalls_Playlist),
                             static_cast<Element*>(&Autoplay), static_cast<Element*>(&Autoplay_Random)})
        element->aktiv(false);
    Lied_starten.Klick.verbinden([this] { starte_gewähltes_Lied(); });
}

void Wiedergabebereich::starte_gewähltes_Lied() {
    const Long nr = gewähltes_Lied ? gewähltes_Lied() : 0;
    if (nr > 0) zählung_.starte_Lied(nr);
}

Knoten Wiedergabebereich::anordnung() {
    return Spalte({
        Gitter(3, {Knoten(Lied_starten).dehnen(1), Knoten(Lied_kopieren).dehnen(1), Knoten(Lied_löschen).dehnen(1),
                   Knoten(Zufallslied_starten).dehnen(1), Knoten(Zufalls_Playlist).dehnen(1),
                   Knoten(add_to_Playlist).dehnen(1)}),
        Zeile({Autoplay, Autoplay_Random, Feder()}),
    });
}

}  // namespace tonkartei
