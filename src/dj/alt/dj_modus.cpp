#include "dj/alt/dj_modus.hpp"

#include "datenbank/haus.hpp"
#include "dj/alt/farben.hpp"
#include "grundlagen/waehrend.hpp"
#include "oberflaeche/ansicht.hpp"

namespace tonkartei {
namespace {

// Time in which both players find to themselves.
constexpr int Anlauf_ms = 500;

}  // namespace

DJ_Modus::DJ_Modus(Haus& haus, Wiedergabe& wiedergabe)
    : Fenster(haus.ansicht, "DJ_Modus", "Tonkartei - DJ-Modus"),
      Spieler(haus, wiedergabe),
      Titel(haus.ansicht, Spieler, haus.plattform.Rechner),
      Kategorien(haus.ansicht, haus.modell),
      Lieder(haus.ansicht, haus.modell, Kategorien, haus.plattform.Rechner),
      Wünsche(haus.ansicht, haus.modell, Lieder),
      Mixer(haus.modell, Spieler, Titel, Lieder, Wünsche),
      Kidnap(haus.plattform.Fenstersystem),
      rechner_(haus.plattform.Rechner) {
    hintergrund = Pultgrund;
    eigenständig = true;
    Titel.eins.einbetten(Titel1_Platz);
    Titel.zwei.einbetten(Titel2_Platz);
    Mixer.einbetten(Mixer_Platz);
    Lieder.einbetten(Liste_Platz);
    Kategorien.einbetten(Kategorien_Platz);
    Wünsche.einbetten(Wunsch_Platz);
    for (Rahmen* rahmen : {&Titel1_Platz, &Titel2_Platz, &Mixer_Platz, &Liste_Platz, &Kategorien_Platz, &Wunsch_Platz})
        rahmen->hintergrund(Pultgrund);
    Kidnap.Kidnap_leeren();
    Tasten_verbinden();
}

// What the mouse does by dragging, for the keyboard: 1 and 2 load the chosen song into a player, W wishes it.
void DJ_Modus::Tasten_verbinden() {
    for (Listenfeld* liste : {&Lieder.Liste, &Wünsche.Liste})
        liste->Tastendruck.verbinden([this, liste](Taste& taste) {
            const Text zeichen = taste.art == Taste::Art::Zeichen ? groß(taste.zeichen) : Text();
            taste.erledigt = true;
            if (zeichen == "1" || zeichen == "2")
                Mixer.Play_Pause_DragDrop(zeichen == "1" ? 1 : 2, *liste);
            else if (zeichen == "W" && liste == &Lieder.Liste)
                Wünsche.Liste.Abgelegt(*liste);
            else if (taste.art == Taste::Art::Löschen && liste == &Wünsche.Liste)
                Wünsche.löschen.Klick();
            else
                taste.erledigt = false;
        });
}

Knoten DJ_Modus::anordnung() {
    return Spalte({Zeile({Knoten(Titel1_Platz).dehnen(1), Knoten(Titel2_Platz).dehnen(1)}),
                   Zeile({Knoten(Mixer_Platz).dehnen(1, 1), Knoten(Liste_Platz).dehnen(3, 1),
                          Knoten(Kategorien_Platz).dehnen(0, 1), Knoten(Wunsch_Platz).dehnen(1, 1)})
                       .dehnen(1, 1)})
        .rand(120);
}

void DJ_Modus::starten() {
    if (geladen()) return zeigen();
    if (offen) offen(true);
    zeigen();
    Spieler.öffnen();
    for (const int n : {1, 2})
        if (!Spieler.starte_WinAmp(n, {})) return;
    rechner_.Sleep(Anlauf_ms);
    for (Fenster* teil : std::initializer_list<Fenster*>{&Titel.eins, &Titel.zwei, &Lieder, &Mixer, &Kategorien, &Wünsche})
        teil->laden();
    Lieder.erstelle_Liste();
    Wünsche.auffrischen();
    for (Fenster* teil : std::initializer_list<Fenster*>{&Titel.eins, &Titel.zwei, &Lieder, &Mixer, &Kategorien, &Wünsche})
        teil->zeigen();
}

void DJ_Modus::beim_Entladen() {
    Kidnap.alle_Fenster_zurückgeben();
    Spieler.beenden();
    for (Fenster* teil : std::initializer_list<Fenster*>{&Mixer, &Kategorien, &Lieder, &Titel.eins, &Titel.zwei})
        teil->entladen();
    if (offen && !bleibt_zu_) offen(false);
    Wünsche.verstecken();
}

void DJ_Modus::Spieler_beenden() noexcept {
    try {
        Spieler.beenden();
    } catch (...) {  // NOLINT(bugprone-empty-catch): there is nobody left to tell
    }
}

void DJ_Modus::mit_dem_Programm_schließen() {
    const Während zu(bleibt_zu_);
    entladen();
    Wünsche.entladen();
}

}  // namespace tonkartei
