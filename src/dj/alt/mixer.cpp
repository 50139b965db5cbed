// The mixer's controls: how they look and what they are at the start.
#include "dj/alt/mixer.hpp"

#include "datenbank/modell.hpp"
#include "dj/alt/dj_liste.hpp"
#include "dj/alt/farben.hpp"
#include "dj/alt/titelpaar.hpp"
#include "dj/alt/wunschliste.hpp"
#include "oberflaeche/ansicht.hpp"

namespace tonkartei {
namespace {

constexpr int Lautstärke_maximal_255 = 255;
constexpr int Autofade_Anfang = 13, speed_Anfang = 7, POF_Anfang = 30;
// Until a song tells its length.
constexpr int übliche_Länge = 100;
// Room for the bars under the crossfader, twips.
constexpr int POF_Höhe = 90;

}  // namespace

Mixer::Kanal::Kanal(Mixer& mixer, int n)
    : Play_Pause(mixer, "WinAmp" + Zahltext(n) + "_Play_Pause"),
      Random(mixer, "WinAmp" + Zahltext(n) + "_Random", "Random"),
      Zeit(mixer, "Zeit" + Zahltext(n), "-00:00"),
      Anzeige_Lautstärke(mixer, "Anzeige_Lautstärke" + Zahltext(n)),
      Lautstärke(mixer, "Lautstärke" + Zahltext(n), 0, Lautstärke_maximal_255),
      Autofade(mixer, "Autofade" + Zahltext(n), "Autofade"),
      Autofade_Scroll(mixer, "Autofade" + Zahltext(n) + "_Scroll", 0, übliche_Länge),
      Autofade_Zeit(mixer, "Autofade" + Zahltext(n) + "_Zeit") {
    Play_Pause.Bild = "pause";
    const Text Player = "Player " + Zahltext(n);
    Play_Pause.Vorlesename = Player + ", Play oder Pause";
    Random.Vorlesename = Player + ", Random";
    Lautstärke.Vorlesename = Player + ", Lautstärke";
    Autofade.Vorlesename = Player + ", Autofade";
    Autofade_Scroll.Vorlesename = Player + ", Beginn des Autofade";
    Play_Pause.tooltip("spielt oder hält an; nimmt Lieder an, die auf ihn gezogen werden");
    Random.tooltip("lädt ein Zufalls-Lied aus der Liste");
    Lautstärke.wert(gerundet(Lautstärke_maximal_255 * 0.25));
    Autofade_Scroll.wert(Autofade_Anfang);
    Zeit.schrift(16);
    Zeit.fett(true);
    Zeit.ausrichtung = Anzeige_Lautstärke.ausrichtung = Schriftfeld::Ausrichtung::Mitte;
    Lautstärke.senkrecht = Lautstärke.umgekehrt = Lautstärke.griffig = true;
    Lautstärke.tooltip("Lautstärke des Players vor der Mischung");
    Autofade.tooltip("kurz vor dem Ende des Liedes zum anderen Player faden");
    Autofade_Scroll.tooltip("Zeit vor dem Ende, zu der das Faden beginnt");
}

Mixer::Mixer(const Modell& modell, Spielerpaar& spieler, Titelpaar& titel, DJ_Liste& lieder, Wunschliste& wünsche)
    : Fenster(lieder.ansicht(), "Mixer", "Mixer"),
      modell_(modell),
      spieler_(spieler),
      titel_(titel),
      lieder_(lieder),
      wünsche_(wünsche),
      Timer_(lieder.ansicht(), [this] { Tick(); }) {
    hintergrund = Pultgrund;
    Crossfade.wert(Mischgesetz_alt::Mitte);
    Autofade_speed.wert(speed_Anfang);
    POF_Punkt.wert(POF_Anfang);
    POF_Punkt.aktiv(false);
    Crossfade.griffig = true;
    Crossfade.Vorlesename = "Crossfader";
    Lautstärke_Link.Vorlesename = "Lautstärken gemeinsam";
    Source_Play.Vorlesename = "Play";
    Source_Pause.Vorlesename = "Pause";
    Crossfade.tooltip("Player 1 links, Player 2 rechts");
    Crossfade_Mitte.ausrichtung = Schriftfeld::Ausrichtung::Mitte;
    Crossfade_Mitte.fett(true);
    Crossfade_Mitte.tooltip("stellt den Crossfader in die Mitte");
    Fade_anderes_Lied.frei = true;
    Fade_anderes_Lied.sichtbar(false);
    Fade_anderes_Lied.tooltip("fadet zum anderen Player");
    for (Balken* balken : {&POF_Warnung_Rot, &POF_Warnung_Grün}) {
        balken->frei = true;
        balken->Diagramm = true;
        balken->sichtbar(false);
    }
    POF_Warnung_Rot.farbe(Grundfarbe(12));
    POF_Warnung_Grün.farbe(Grundfarbe(10));
    Lautstärke_Link.tooltip("beide Lautstärken gemeinsam verstellen");
    Autofade_speed.tooltip("Sekunden eines Fades; bei 0 springt der Crossfader");
    Play_on_fade.tooltip("startet den wartenden Player, wenn der Crossfader über den Punkt geht");
    POF_Punkt.tooltip("Punkt auf dem Crossfader, ab dem gestartet wird");
    Random_after_Autofade.tooltip("lädt nach dem Faden ein Zufalls-Lied in den ausgeblendeten Player");
    Neue_Lieder_starten.tooltip("lädt zwei Zufalls-Lieder und spielt ohne Ende abwechselnd");
    Source_Play.Bild = "play";
    Source_Pause.Bild = "pause";
    Source_Play.sichtbar(false);
    Source_Pause.sichtbar(false);
    verbinden();
}

Knoten Mixer::Kanalknoten(int n) {
    Kanal& kanal = Player(n);
    return Spalte({kanal.Zeit, Zeile({Knoten(kanal.Play_Pause).mindestens(750, 600), Knoten(kanal.Random).Platz_halten()}),
                   Zeile({Feder(), Knoten(kanal.Lautstärke).dehnen(0, 1), Feder()}).dehnen(0, 1),
                   Knoten(kanal.Anzeige_Lautstärke).zeichen(5),
                   Zeile({kanal.Autofade, Knoten(kanal.Autofade_Zeit).zeichen(5)}), kanal.Autofade_Scroll});
}

Knoten Mixer::anordnung() {
    const Knoten Mitte =
        Spalte({Knoten(Crossfade_Mitte).zeichen(8), Zeile({Lautstärke_Link, Label_Link}), Feder(0, 1),
                Knoten(Play_on_fade).Platz_halten(), POF_Punkt, Feder(0, 1), Random_after_Autofade, Neue_Lieder_starten});
    return Spalte(
        {Zeile({Kanalknoten(1).dehnen(0, 1), Knoten(Mitte).dehnen(1, 1), Kanalknoten(2).dehnen(0, 1)}).dehnen(1, 1),
         Knoten(Crossfade).dehnen(1), Knoten(POF_Platz).mindestens(0, POF_Höhe).dehnen(1),
         Knoten(Fade_Platz).mindestens(3900, 480).dehnen(1),
         Zeile({Autofade_speed_Text, Knoten(Autofade_speed).dehnen(1), Knoten(Autofade_speed_Label).zeichen(4)})});
}

void Mixer::beim_Laden() {
    Blink_Zähler_ = 0;
    Autofade_aktiv_ = false;
    for (const int n : {1, 2}) {
        Player(n).läuft = Player(n).geladen = false;
        Player(n).Autofade_Sekunden = Autofade_Anfang;
        Autofade_Zeit_zeigen(n);
    }
    Crossfade_Scroll();
    Timer_.stellen(Takt_ms, true);
}

void Mixer::bei_neuer_Anordnung() {
    Fade_anderes_Lied.lage(
        {Fade_anderes_Lied.links(), Fade_Platz.oben(), ansicht().Wunschgröße(Fade_anderes_Lied).breite, Fade_Platz.höhe()});
}

}  // namespace tonkartei
