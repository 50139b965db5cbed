#include "wiedergabe/fernsteuerung.hpp"

#include <initializer_list>

#include "datenbank/einstellungen.hpp"
#include "grundlagen/waehrend.hpp"
#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/fenster.hpp"
#include "wiedergabe/winamp/winamp.hpp"

namespace tonkartei {
namespace {

constexpr int enge_Lücke = 3 * Twips_je_Pixel;

}  // namespace

Fernsteuerung::Fernsteuerung(Fenster& f, Einstellungen& einstellungen, WinAmp& winamp, Rechner& rechner, const Element& ecke)
    : WinAmp_Show(f, "WinAmp_Show", "griff"),
      WinAmp_Frame(f, "WinAmp_Frame"),
      WinAmp_zurück(f, "WinAmp_zurück"),
      WinAmp_Play(f, "WinAmp_Play"),
      Winamp_Pause(f, "Winamp_Pause"),
      WinAmp_Stop(f, "WinAmp_Stop"),
      WinAmp_vor(f, "WinAmp_vor"),
      Vol_Bild(f, "WinAmp_Vol_Bild", "lautsprecher"),
      WinAmp_Vol(f, "WinAmp_Vol", 0, Lautstärke_maximal),
      WinAmp_Zeit(f, "WinAmp_Zeit", "00:00"),
      WinAmp_Position(f, "WinAmp_Position", 0, 1),
      einstellungen_(einstellungen),
      winamp_(winamp),
      rechner_(rechner),
      bewegung_(WinAmp_Frame, WinAmp_Show, ecke) {
    WinAmp_Show.Wunsch = {14 * Twips_je_Pixel, 20 * Twips_je_Pixel};
    WinAmp_Show.eingerahmt = true;
    Vol_Bild.Wunsch = {16 * Twips_je_Pixel, 16 * Twips_je_Pixel};
    WinAmp_Frame.frei = true;
    WinAmp_Frame.deckend = true;
    WinAmp_Frame.sichtbar(false);
    WinAmp_Zeit.eingerahmt = true;
    WinAmp_Zeit.wie_Daten = true;
    WinAmp_Zeit.ausrichtung = Schriftfeld::Ausrichtung::Mitte;

    // The bare ground of the panel has none: it would flare up between two buttons, and a mouse that comes to a place
    // without a number leaves the panel open anyway.
    int nummer = erste_Mausnummer;
    for (Element* e : std::initializer_list<Element*>{&WinAmp_Show, &WinAmp_Play, &Winamp_Pause, &WinAmp_Stop, &WinAmp_vor,
                                                      &WinAmp_zurück, &WinAmp_Position, &WinAmp_Vol, &WinAmp_Zeit})
        e->Mausnummer = nummer++;

    const auto Taste = [](Knopf& knopf, const char* name, const char* bild, const char* tooltip) {
        knopf.klein = true;
        knopf.Vorlesename = name;
        knopf.Bild = bild;
        knopf.tooltip(tooltip);
    };
    Taste(WinAmp_zurück, "zurück", "zurück", "an den Anfang des Liedes, gehalten: zurückspulen");
    Taste(WinAmp_Play, "Play", "play", "spielt das Lied in WinAmp");
    Taste(Winamp_Pause, "Pause", "pause", "hält das Lied an oder spielt es weiter");
    Taste(WinAmp_Stop, "Stop", "stop", "beendet das Lied in WinAmp");
    Taste(WinAmp_vor, "vor", "vor", "nächstes oder Zufalls-Lied, gehalten: vorspulen");
    WinAmp_Show.tooltip("Fernsteuerung von WinAmp");
    WinAmp_Position.tooltip("Stelle im Lied");
    WinAmp_Vol.tooltip("Lautstärke von WinAmp");
    Vol_Bild.tooltip(WinAmp_Vol.tooltip());
    WinAmp_Zeit.Vorlesename = "Zeit";
    WinAmp_Zeit.tooltip("gespielte Zeit oder Restzeit, ein Klick wechselt");

    Tasten_verbinden();
    WinAmp_Play.Klick.verbinden([this] {
        if (winamp_.WinAmp_Status != Status_spielt) winamp_.Befehl(WinAmp_Code_Play);
    });
    Winamp_Pause.Klick.verbinden([this] { winamp_.Befehl(WinAmp_Code_Pause); });
    WinAmp_Stop.Klick.verbinden([this] { winamp_.Befehl(WinAmp_Code_Stop); });
    WinAmp_vor.Gedrückt.verbinden([this](int, int) { vor_.drücken(rechner_.jetzt()); });
    WinAmp_vor.Losgelassen.verbinden([this](int, int) {
        if (vor_.loslassen(rechner_.jetzt())) Zufallslied_gewünscht();
    });
    WinAmp_zurück.Gedrückt.verbinden([this](int, int) { zurück_.drücken(rechner_.jetzt()); });
    WinAmp_zurück.Losgelassen.verbinden([this](int, int) {
        if (zurück_.loslassen(rechner_.jetzt())) winamp_.springen(0);
    });
    WinAmp_Position.Gedrückt.verbinden([this](int, int) { Position_.drücken(rechner_.jetzt()); });
    WinAmp_Position.Losgelassen.verbinden([this](int x, int) {
        if (Position_.loslassen(rechner_.jetzt())) Leiste_angeklickt(x);
    });
    // The hand alone: the tick moves the slider, too, and must not send the player back.
    WinAmp_Position.Gescrollt.verbinden([this] { winamp_.springen(WinAmp_Position.wert()); });
    WinAmp_Vol.Geändert.verbinden([this] { Lautstärke_geändert(); });
    WinAmp_Vol.Gescrollt.verbinden([this] { Lautstärke_geändert(); });
    WinAmp_Zeit.Klick.verbinden([this] { einstellungen_.WinAmp_Zeit_vorwärts = !einstellungen_.WinAmp_Zeit_vorwärts; });
}

// Low enough for the two rows of buttons below it.
Knoten Fernsteuerung::Tafelknoten() {
    return Gruppe(WinAmp_Frame,
                  Spalte({Zeile({WinAmp_zurück, WinAmp_Play, Winamp_Pause, WinAmp_Stop, WinAmp_vor, Feder(), Vol_Bild,
                                 Knoten(WinAmp_Vol).mindestens(70 * Twips_je_Pixel, 0), Knoten(WinAmp_Zeit).zeichen(8)})
                              .lücke(enge_Lücke),
                          Feder(0, 1), Knoten(WinAmp_Position).dehnen(1), Feder(0, 1)})
                      .lücke(Twips_je_Pixel))
        .Platz_halten();
}

void Fernsteuerung::Einstellungen_setzen() {
    {
        const Während setzt(setzt_Einstellungen_);
        WinAmp_Vol.wert(einstellungen_.WinAmp_Lautstärke);
    }
    Fernsteuerung_umgeschaltet();
}

void Fernsteuerung::Fernsteuerung_umgeschaltet() { WinAmp_Show.sichtbar(einstellungen_.WinAmp_Fernsteuerung); }

void Fernsteuerung::Animation_umgeschaltet() {
    if (!einstellungen_.WinAmp_Fernsteuerung_animiert) bewegung_.an_offenen_Platz();
}

void Fernsteuerung::Fernsteuerung_schließen(bool animiert) {
    bewegung_.schließen(animiert);
    const Element* fokus = WinAmp_Frame.fenster().ansicht().fokus();
    if (!sichtbar() && fokus != nullptr && fokus->rahmen() == &WinAmp_Frame) Fokus_frei();
}

void Fernsteuerung::Tasten_verbinden() {
    WinAmp_Show.Klick.verbinden([this] { mit_Taste_öffnen(); });
    for (Element* e : std::initializer_list<Element*>{&WinAmp_zurück, &WinAmp_Play, &Winamp_Pause, &WinAmp_Stop, &WinAmp_vor,
                                                      &WinAmp_Vol, &WinAmp_Zeit, &WinAmp_Position})
        e->Tastendruck.verbinden([this](Taste& taste) {
            if (taste.art != Taste::Art::Escape) return;
            taste.erledigt = true;
            Fernsteuerung_schließen(einstellungen_.WinAmp_Fernsteuerung_animiert);
        });
}

void Fernsteuerung::mit_Taste_öffnen() {
    if (!WinAmp_Show.bedienbar()) return;
    if (!sichtbar()) Fernsteuerung_öffnen(einstellungen_.WinAmp_Fernsteuerung_animiert);
    if (sichtbar()) WinAmp_Frame.fenster().ansicht().fokus(WinAmp_Play);
}

void Fernsteuerung::Lautstärke_geändert() {
    if (!setzt_Einstellungen_) winamp_.Lautstärke_stellen(WinAmp_Vol.wert());
}

void Fernsteuerung::Leiste_angeklickt(int x) {
    if (WinAmp_Position.breite() <= 0) return;
    winamp_.springen(Sekunde_am_Klick(x, WinAmp_Position.breite(), WinAmp_Position.max()));
}

void Fernsteuerung::anzeigen() {
    if (!sichtbar() || !winamp_.WinAmp_da) return;
    const Long Sekunde = gerundet(winamp_.Position() / 1000.0);
    const Long Länge = winamp_.Länge();
    const Text zeit =
        einstellungen_.WinAmp_Zeit_vorwärts ? Spielzeit(Sekunde) : "-" + Spielzeit(static_cast<long long>(Länge) - Sekunde);
    switch (winamp_.WinAmp_Status) {
        case Status_spielt: WinAmp_Zeit.beschriftung(zeit); break;
        case Status_Pause: WinAmp_Zeit.beschriftung("|| " + zeit); break;
        default: WinAmp_Zeit.beschriftung("STOP"); break;
    }
    // The two steps differ on purpose: without a song the slider is cut even under the user's hand. Its value is not set
    // then; it goes only as far as the new range makes it.
    if (Länge < 1) {
        WinAmp_Position.bereich(0, 1);
    } else if (!Position_.gehalten()) {
        WinAmp_Position.bereich(0, Länge);
        WinAmp_Position.wert(Sekunde);
    }
    if (zurück_.gehalten()) winamp_.Befehl(WinAmp_Code_zurück);
    if (vor_.gehalten()) winamp_.Befehl(WinAmp_Code_vor);
}

}  // namespace tonkartei
