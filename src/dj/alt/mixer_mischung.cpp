// The mixer under the hand: the mix, the play buttons, songs onto the players, fades.
#include "datenbank/modell.hpp"
#include "dj/alt/dj_liste.hpp"
#include "dj/alt/mixer.hpp"
#include "dj/alt/titelpaar.hpp"
#include "dj/alt/wunschliste.hpp"

namespace tonkartei {

void Mixer::verbinden() {
    Crossfade.Geändert.verbinden([this] { Crossfade_Scroll(); });
    Crossfade_Mitte.Klick.verbinden([this] { Crossfade.wert(Mischgesetz_alt::Mitte); });
    Lautstärke_Link.Klick.verbinden([this] {
        if (Lautstärke_Link.wert()) Lautstärke_geändert(1);
    });
    Autofade_speed.Geändert.verbinden([this] { Autofade_speed_Label.beschriftung(Zahltext(Autofade_speed.wert()) + "s"); });
    // As it reads: which players run may have changed since.
    Fade_anderes_Lied.Klick.verbinden([this] { Fade_von(Fade_weg_von_); });
    Neue_Lieder_starten.Klick.verbinden([this] { neue_Lieder(); });
    for (const int n : {1, 2}) Kanal_verbinden(n);
}

void Mixer::Kanal_verbinden(int n) {
    Kanal& kanal = Player(n);
    kanal.Play_Pause.Klick.verbinden([this, n] { Play_Pause(n); });
    kanal.Random.Klick.verbinden([this, n] { Zufalls_Start(n); });
    kanal.Lautstärke.Geändert.verbinden([this, n] { Lautstärke_geändert(n); });
    // The hand alone: the tick moves the slider, too, as far as the song goes.
    kanal.Autofade_Scroll.Gescrollt.verbinden([this, &kanal, n] {
        kanal.Autofade_Sekunden = kanal.Autofade_Scroll.wert();
        Autofade_Zeit_zeigen(n);
    });
    kanal.Play_Pause.Abgelegt.verbinden([this, n](Element& quelle) { Play_Pause_DragDrop(n, quelle); });
    DJ_Titel& titel = titel_[n];
    for (Element* ziel : std::initializer_list<Element*>{&titel.Titel, &titel.Artist, &titel.WinAmp_Position})
        ziel->Abgelegt.verbinden([this, n](Element& quelle) { Play_Pause_DragDrop(n, quelle); });
}

void Mixer::Lautstärke_geändert(int n) {
    if (Lautstärke_Link.wert()) Player(3 - n).Lautstärke.wert(Player(n).Lautstärke.wert());
    Crossfade_Scroll();
}

void Mixer::Autofade_Zeit_zeigen(int n) {
    Player(n).Autofade_Zeit.beschriftung("-" + Spielzeit(Player(n).Autofade_Sekunden));
}

void Mixer::Crossfade_Scroll() {
    const int c = Crossfade.wert();
    for (const int n : {1, 2}) {
        const Regler& regler = Player(n).Lautstärke;
        spieler_.Fenster(n).Lautstärke(Mischgesetz_alt::Lautstärke(n, regler.max() - regler.wert(), c));
        const auto prozent = static_cast<int>(100 - static_cast<double>(regler.wert()) / regler.max() * 100);
        Player(n).Anzeige_Lautstärke.beschriftung(Zahltext(prozent) + "%");
    }
    Crossfade_Mitte.farbe(Grundfarbe(Mischgesetz_alt::Mittenfarbe(c, Autofade_aktiv_)));
    // One start a check: whoever waits begins as the crossfader comes by.
    if (!Play_on_fade.wert() || !Mischgesetz_alt::im_Startbereich(c, Mischgesetz_alt::Startpunkt(POF_Punkt.wert()))) return;
    for (const int n : {1, 2})
        if (!Player(n).läuft) Play_Pause(n);
    Play_on_fade.wert(false);
}

void Mixer::Play_Pause(int n) {
    Kanal& kanal = Player(n);
    kanal.läuft = !kanal.läuft;
    Spielerfenster& fenster = spieler_.Fenster(n);
    fenster.Befehl(WinAmp_Code_Pause);
    if (!kanal.läuft)
        kanal.geladen = false;
    else if (fenster.Status() == Status_gestoppt)
        fenster.Befehl(WinAmp_Code_Play);
}

void Mixer::Starte_Lied_Nr(int n, Long Nr) {
    if (Nr < 1 || !spieler_.starte(n, modell_.Lied_Pfad(Nr))) return;
    Crossfade_Scroll();
    titel_[n].zeigen_Lied(modell_.Lieder[Nr]);
    Player(n).geladen = true;
}

void Mixer::Play_Pause_DragDrop(int n, const Element& Quelle) {
    Long nr = 0;
    if (Quelle.tag() == lieder_.Liste.tag()) {
        nr = lieder_.gewähltes_Lied();
    } else if (Quelle.tag() == wünsche_.Liste.tag() && wünsche_.Liste.gewählt() >= 0) {
        // A wish that is loaded leaves the list at once; a category line is none.
        nr = wünsche_.gewähltes_Lied();
        wünsche_.Position_löschen(nr);
    }
    Starte_Lied_Nr(n, nr);
}

void Mixer::Zufalls_Start(int n) { Starte_Lied_Nr(n, lieder_.Zufalls_Nr()); }

void Mixer::neue_Lieder() {
    for (const int n : {1, 2}) Zufalls_Start(n);
    for (const int n : {1, 2}) Player(n).Autofade.wert(true);
    Random_after_Autofade.wert(true);
    Crossfade.wert(0);
    Play_Pause(1);
}

void Mixer::Fade_von(int n) {
    const int anderer = 3 - n, ziel = n == 1 ? Mischgesetz_alt::Maximum : 0;
    if (!Player(anderer).läuft) Play_Pause(anderer);
    const int sekunden = Autofade_speed.wert();
    if (sekunden == 0) {
        Crossfade.wert(ziel);
        if (spieler_.Fenster(n).Status() == Status_spielt) Ende_Autofade(n);
        return;
    }
    Autofade_aktiv_ = true;
    Autofade_Tick_ = 0;
    Autofade_Ticks_ = sekunden * (1000 / Takt_ms);
    // Whole steps: a fade may stop short of the end, with a rest of the other side to be heard.
    Autofade_Schritt_ = gerundet(static_cast<double>(ziel - Crossfade.wert()) / Autofade_Ticks_);
}

// This desk stops a player, and does not pause it.
void Mixer::Ende_Autofade(int n) {
    spieler_.Fenster(n).Befehl(WinAmp_Code_Stop);
    if (Random_after_Autofade.wert()) Zufalls_Start(n);
}

}  // namespace tonkartei
