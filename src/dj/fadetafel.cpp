#include "dj/fadetafel.hpp"

#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/fenster.hpp"

namespace tonkartei {
namespace {

constexpr int Fadezeit_Anfang = 5, Autozeit_Anfang = 13;
constexpr int Fadezeit_kürzeste = 2, Autozeit_kürzeste = 3;

}  // namespace

Fadetafel::Fadetafel(Fenster& f)
    : Start_Fade(f, "Start_Fade", {"1 → 2", "2 → 1", "3 → 4", "4 → 3", "1+2 → 3+4", "3+4 → 1+2"}),
      Start_Center(f, "Start_Center", {"Mitte", "Mitte", "Mitte"}),
      Start_Automatik(f, "Start_Automatik", "&Automatik starten"),
      Fadezeit_Label1(f, "Fadezeit_Label1", "&Fadezeit:"),
      Fadezeit(f, "Fadezeit"),
      Fadezeit_Label2(f, "Fadezeit_Label2", "s"),
      Fadezeit_Scroll(f, "Fadezeit_Scroll", 3, 31),
      Autozeit_Label1(f, "Autozeit_Label1", "Auto&zeit:"),
      Autozeit(f, "Autozeit"),
      Autozeit_Label2(f, "Autozeit_Label2", "s"),
      Autozeit_Scroll(f, "Autozeit_Scroll", 3, 60),
      ansicht_(f.ansicht()) {
    const char* const Hilfen[] = {"fadet von Player 1 zu Player 2",
                                  "fadet von Player 2 zu Player 1",
                                  "fadet von Player 3 zu Player 4",
                                  "fadet von Player 4 zu Player 3",
                                  "fadet von Player 1 und 2 zu Player 3 und 4",
                                  "fadet von Player 3 und 4 zu Player 1 und 2"};
    for (int i = 1; i <= 6; ++i) Start_Fade[i].tooltip(Hilfen[i - 1]);
    Start_Center[1].tooltip("setzt den Crossfader für Player 1 und 2 in die Mitte");
    Start_Center[2].tooltip("setzt den Crossfader für Player 3 und 4 in die Mitte");
    Start_Center[3].tooltip("setzt den Crossfader für Player 1, 2, 3 und 4 in die Mitte");
    Start_Automatik.tooltip("spielt ohne Ende abwechselnd mit Player 1 und 2");
    Fadezeit_Scroll.tooltip("Länge eines Fades");
    Autozeit_Scroll.tooltip("Zeit vor dem Ende des Liedes, zu der ein automatischer Fade beginnt");
    // The longer time at the right, though the sliders' values run the other way.
    for (Regler* regler : {&Fadezeit_Scroll, &Autozeit_Scroll}) regler->umgekehrt = regler->griffig = true;
    for (Schriftfeld* feld : {&Fadezeit, &Autozeit}) feld->ausrichtung = Schriftfeld::Ausrichtung::rechts;
    Fadezeit_Scroll.Geändert.verbinden([this] { Fadezeit_geändert(); });
    Autozeit_Scroll.Geändert.verbinden([this] { Autozeit_geändert(); });
}

void Fadetafel::beginnen() {
    Fadezeit_Scroll.wert(Fadezeit_Scroll.max() - Fadezeit_Anfang + Fadezeit_kürzeste);
    Autozeit_Scroll.wert(Autozeit_Scroll.max() - Autozeit_Anfang + Autozeit_Scroll.min());
}

Knoten Fadetafel::Zeiten_anordnung() {
    return Zeile({Fadezeit_Label1, Knoten(Fadezeit).zeichen(2), Fadezeit_Label2, Knoten(Fadezeit_Scroll).dehnen(1),
                  Autozeit_Label1, Knoten(Autozeit).zeichen(2), Autozeit_Label2, Knoten(Autozeit_Scroll).dehnen(1)});
}

// A fade is always shorter than the time that is left for it: whichever is moved takes the other along.
void Fadetafel::Fadezeit_geändert() {
    Fadezeit.beschriftung(Zahltext(Fadezeit_Scroll.max() - Fadezeit_Scroll.wert() + Fadezeit_kürzeste));
    if (const Long zeit = Sekunden(Fadezeit); Sekunden(Autozeit) <= zeit)
        Autozeit_Scroll.wert(Autozeit_Scroll.min() + Autozeit_Scroll.max() - (zeit + 1));
    ansicht_.Ereignisse_laufen_lassen();
}

void Fadetafel::Autozeit_geändert() {
    Autozeit.beschriftung(Zahltext(Autozeit_Scroll.max() - Autozeit_Scroll.wert() + Autozeit_kürzeste));
    if (const Long zeit = Sekunden(Autozeit); Sekunden(Fadezeit) >= zeit)
        Fadezeit_Scroll.wert(Fadezeit_Scroll.max() - (zeit - 1) + Fadezeit_kürzeste);
    ansicht_.Ereignisse_laufen_lassen();
}

}  // namespace tonkartei
