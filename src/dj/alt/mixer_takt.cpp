// The mixer's tick, twice a second.
#include "dj/alt/farben.hpp"
#include "dj/alt/mixer.hpp"
#include "dj/alt/titelpaar.hpp"

namespace tonkartei {
namespace {

// Where the button of the other fade stands, under the player that it leaves; twips.
constexpr int Fade_links_1 = 600, Fade_links_2 = 2280;
// Of the bars under the crossfader: what stays free at its ends, and how far red goes beyond its share; twips.
constexpr int Bahnrand = 240, Rot_Zugabe = 120;
constexpr int Balkenhöhe = 60;

}  // namespace

void Mixer::Tick() {
    for (const int n : {1, 2}) Player(n).läuft = spieler_.Fenster(n).Status() == Status_spielt;
    Angebote_zeigen();
    Startbereich_zeigen();
    blinken();
    Zeiten_zeigen();
    if (Autofade_aktiv_) {
        Fade_Schritt();
    } else {
        Crossfade_Mitte.beschriftung("Center");
        Crossfade_Scroll();
        Autofade_prüfen();
    }
    for (const int n : {1, 2}) {
        if (!geladen() || titel_[n].Winamp_Scrolling()) continue;
        Regler& position = titel_[n].WinAmp_Position;
        const Long länge = spieler_.Fenster(n).Länge();
        position.bereich(0, länge < 1 ? 1 : länge);
        position.wert(länge < 1 ? 0 : gerundet(spieler_.Fenster(n).Position() / 1000.0));
    }
}

// What makes sense just now: one fade while one player plays, songs by chance for a player that is silent.
void Mixer::Angebote_zeigen() {
    const bool eins = Player(1).läuft, zwei = Player(2).läuft;
    Neue_Lieder_starten.aktiv(!eins && !zwei);
    Fade_anderes_Lied.aktiv(eins != zwei);
    Fade_anderes_Lied.sichtbar(eins != zwei);
    if (eins != zwei) {
        Fade_weg_von_ = eins ? 1 : 2;
        Fade_anderes_Lied.beschriftung(eins ? "Fade -->" : "<-- Fade");
        Fade_anderes_Lied.lage({eins ? Fade_links_1 : Fade_links_2, Fade_anderes_Lied.oben(), Fade_anderes_Lied.breite(),
                                Fade_anderes_Lied.höhe()});
    }
    for (Kanal& kanal : Kanäle) {
        kanal.Random.aktiv(!kanal.läuft);
        kanal.Random.sichtbar(!kanal.läuft);
    }
}

// Play on fade waits on the far side from the silent player; anywhere else it is taken back. Red is the stretch in which
// nothing happens yet, green the one in which the start comes.
void Mixer::Startbereich_zeigen() {
    const double k = Mischgesetz_alt::Startpunkt(POF_Punkt.wert());
    const int c = Crossfade.wert(), max = Mischgesetz_alt::Maximum;
    const bool angeboten = (c > max - max * k && !Player(1).läuft) || (c < max * k && !Player(2).läuft);
    Play_on_fade.sichtbar(angeboten);
    if (!angeboten) Play_on_fade.wert(false);
    POF_Punkt.aktiv(Play_on_fade.wert());
    POF_Warnung_Rot.sichtbar(Play_on_fade.wert());
    POF_Warnung_Grün.sichtbar(Play_on_fade.wert());
    if (!Play_on_fade.wert()) return;
    const int bahn = Crossfade.breite() - 2 * Bahnrand, links = Crossfade.links() + Bahnrand, oben = POF_Platz.oben();
    const int rot = gerundet(bahn * k) + Rot_Zugabe;
    const bool von_links = c < max * k;
    POF_Warnung_Rot.lage({von_links ? links : links + bahn - rot, oben, rot, Balkenhöhe});
    POF_Warnung_Grün.lage({von_links ? links + rot : links, oben, bahn - rot, Balkenhöhe});
}

void Mixer::blinken() {
    Blink_Zähler_ = Blink_Zähler_ % 4 + 1;
    for (Kanal& kanal : Kanäle) {
        const bool hell = !kanal.läuft && !kanal.geladen && Blink_Zähler_ <= 2;
        kanal.Random.hintergrund(hell ? Grundfarbe(15) : Pultgrund);
        kanal.Random.farbe(hell ? Farbe_Schwarz : Farbe_Standard);
        kanal.Play_Pause.bild((kanal.läuft ? Source_Play : Source_Pause).Bild);
    }
}

void Mixer::Zeiten_zeigen() {
    for (const int n : {1, 2}) {
        Kanal& kanal = Player(n);
        const Long länge = spieler_.Fenster(n).Länge(), position = spieler_.Fenster(n).Position();
        const long long rest = static_cast<long long>(länge) - gerundet(position / 1000.0);
        Rest_.at(static_cast<std::size_t>(n) - 1) = rest;
        kanal.Zeit.beschriftung("-" + Spielzeit(rest));
        kanal.Autofade_Scroll.aktiv(länge >= 1);
        if (länge < 1) continue;
        kanal.Autofade_Scroll.bereich(0, länge);
        kanal.Autofade_Scroll.wert(kanal.Autofade_Sekunden);
        Autofade_Zeit_zeigen(n);
    }
}

void Mixer::Fade_Schritt() {
    Crossfade_Mitte.beschriftung("Auto");
    if (++Autofade_Tick_ <= Autofade_Ticks_) {
        Crossfade.wert(Crossfade.wert() + Autofade_Schritt_);
        return;
    }
    Autofade_aktiv_ = false;
    Ende_Autofade(Crossfade.wert() > Mischgesetz_alt::Mitte ? 1 : 2);
}

// Whole seconds, and two ticks in each: none is missed while the player runs smoothly. A song shorter than the time never
// gets there.
void Mixer::Autofade_prüfen() {
    for (const int n : {1, 2})
        if (Player(n).Autofade.wert() && Rest_.at(static_cast<std::size_t>(n) - 1) == Player(n).Autofade_Sekunden)
            Fade_von(n);
}

}  // namespace tonkartei
