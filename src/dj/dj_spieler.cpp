#include "dj/dj_spieler.hpp"

#include <cstdlib>

#include "datenbank/haus.hpp"
#include "dj/listen.hpp"
#include "dj/mischgesetz.hpp"
#include "dj/mischung.hpp"

namespace tonkartei {
namespace {

constexpr int Anfangslautstärke = 75;  // percent
constexpr Farbe Spielerfarben[] = {RGB(0, 0, 255), RGB(255, 0, 0), RGB(0, 255, 0), RGB(255, 255, 0)};

Text Klasse(int Player) { return "TonkarteiWA" + Zahltext(Player); }

}  // namespace

DJ_Spieler::DJ_Spieler(Haus& haus, Wiedergabe& wiedergabe, Spielerfelder& felder, Mischung& mischung, Listen& listen)
    : modell_(haus.modell),
      ansicht_(haus.ansicht),
      dateien_(haus.plattform.Dateisystem),
      felder_(felder),
      mischung_(mischung),
      listen_(listen),
      mp3_(dateien_),
      spieler_{
          Einzelner{Spielerprozess(Klasse(1), wiedergabe, haus)}, Einzelner{Spielerprozess(Klasse(2), wiedergabe, haus)},
          Einzelner{Spielerprozess(Klasse(3), wiedergabe, haus)}, Einzelner{Spielerprozess(Klasse(4), wiedergabe, haus)}} {
    for (int n = 1; n <= Spieler_Anzahl; ++n) {
        verbinden(n);
        Ablagen_verbinden(n);
    }
    mischung_.geändert.verbinden([this] { alle_Lautstärken_anwenden(); });
    listen_.zum_Player.verbinden([this](int n, Long nr) { Player_Lied_laden(n, nr); });
}

void DJ_Spieler::verbinden(int n) {
    Spielerfeld& feld = felder_[n];
    feld.Player_Taste_Play.Klick.verbinden([this, n] { Player_schalten(n, false); });
    feld.Player_Taste_Pause.Klick.verbinden([this, n] { Player_schalten(n, true); });
    feld.Player_Taste_Playlist.Klick.verbinden([this, n] { Nächstes_Lied(n); });
    feld.Player_Taste_Random.Klick.verbinden([this, n] { Zufalls_Lied(n); });
    for (int k = 1; k <= Spieler_Anzahl; ++k) feld.Player_Taste_nach(k).Klick.verbinden([this, n, k] { kopieren(n, k); });
    feld.Player_Minus.Klick.verbinden(
        [&feld] { feld.Player_Minus.beschriftung(feld.Player_Minus.beschriftung().empty() ? "-" : ""); });
    feld.Player_Position.Geändert.verbinden([this, n] { gesprungen(n); });
    feld.Player_Lautstärke.Geändert.verbinden([this, n] { Player_Lautstärke_anwenden(n); });
}

void DJ_Spieler::Ablagen_verbinden(int n) {
    for (Element* element : felder_[n].alle()) {
        element->Abgelegt.verbinden([this, n](Element& quelle) {
            if (const Long nr = listen_.Lied_aus_Tag(quelle.tag()); nr >= 1) Player_Lied_laden(n, nr);
        });
        element->Dateien_abgelegt.verbinden([this, n](const std::vector<Text>& pfade) { Dateien_abgelegt(n, pfade); });
    }
}

bool DJ_Spieler::starten() {
    offen_ = true;
    for (Einzelner& einer : spieler_) {
        einer.Datei.clear();
        einer.Sprung = -1;
        einer.Lied = 0;
        einer.prozess.starten({});
        if (offen_) continue;
        beenden();
        return false;
    }
    return true;
}

void DJ_Spieler::beginnen() {
    for (int n = 1; n <= Spieler_Anzahl; ++n) {
        felder_[n].färben(Spielerfarben[n - 1]);
        felder_[n].Helligkeit(0);
        felder_[n].Lautstärke(Anfangslautstärke);
    }
}

void DJ_Spieler::beenden() {
    offen_ = false;
    for (Einzelner& einer : spieler_) einer.prozess.beenden();
}

void DJ_Spieler::Player_schalten(int n, bool An) {
    Spielerfenster& fenster = Spieler(n).prozess.Fenster;
    const bool spielt = fenster.Status() == Status_spielt;
    if (An) {
        if (!spielt) fenster.Befehl(WinAmp_Code_Play);
        listen_.Lied_entfernen(Spieler(n).Lied);
    } else if (spielt) {
        fenster.Befehl(WinAmp_Code_Pause);
    }
    felder_[n].zeigen(An);
    Player_Helligkeit_aktualisieren(n);
}

void DJ_Spieler::Player_Lied_laden(int n, Long Nr) {
    Player_schalten(n, false);
    if (!Player_Datei_laden(n, modell_.Lied_Pfad(Nr))) return;
    Spieler(n).Lied = Nr;
    felder_[n].Player_Artist.beschriftung(modell_.Lieder[Nr].Artist);
    felder_[n].Player_Titel.beschriftung(modell_.Lieder[Nr].Titel);
}

bool DJ_Spieler::Player_Datei_laden(int n, const Text& Datei) {
    // The desk may be closed in the middle of a load, or of what led to it.
    if (!offen_) return false;
    Einzelner& einer = Spieler(n);
    const bool geladen = einer.prozess.wechseln(Datei);
    if (!offen_) einer.prozess.beenden();
    if (!offen_ || !geladen) return false;
    Player_Lautstärke_anwenden(n);
    // Takes back what the new process has already played.
    einer.Sprung = 0;
    einer.Datei = Datei;
    return true;
}

void DJ_Spieler::Nächstes_Lied(int n) {
    if (const auto& playlist = listen_.Lieder(Listen::Playlist); !playlist.empty())
        Player_Lied_laden(n, playlist.front());
    else
        Zufalls_Lied(n);
}

void DJ_Spieler::Zufalls_Lied(int n) {
    if (const Long nr = listen_.Zufalls_Nr(); nr >= 1) Player_Lied_laden(n, nr);
}

void DJ_Spieler::Player_Lautstärke_anwenden(int n) {
    Spieler(n).prozess.Fenster.Lautstärke(Mischgesetz::Lautstärke(mischung_.Gesamt_Anteil(n), felder_[n].Lautstärke()));
}

void DJ_Spieler::Player_Helligkeit_aktualisieren(int n) {
    felder_[n].Helligkeit(Player_spielt(n) ? mischung_.Gesamt_Anteil(n) : 0);
}

void DJ_Spieler::alle_Lautstärken_anwenden() {
    for (int n = 1; n <= Spieler_Anzahl; ++n) {
        Player_Helligkeit_aktualisieren(n);
        Player_Lautstärke_anwenden(n);
        ansicht_.Ereignisse_laufen_lassen();
    }
    ansicht_.Ereignisse_laufen_lassen();
}

// Neither the number nor the buttons of the target change: what counts as playing there gives way to the next song at the
// next tick, since the copy comes up paused. It is meant to be left like that.
void DJ_Spieler::kopieren(int von, int nach) {
    // A copy, as the load may be told anew in the middle of it.
    const Text datei = Spieler(von).Datei;
    if (!Player_Datei_laden(nach, datei)) return;
    felder_[nach].Player_Artist.beschriftung(felder_[von].Player_Artist.beschriftung());
    felder_[nach].Player_Titel.beschriftung(felder_[von].Player_Titel.beschriftung());
}

// The first MP3 of them counts; it need not belong to the collection.
void DJ_Spieler::Dateien_abgelegt(int n, const std::vector<Text>& pfade) {
    for (const Text& pfad : pfade) {
        const Text datei = getrimmt(pfad);
        if (datei.size() <= 4 || groß(rechts(datei, 4)) != ".MP3" || !dateien_.Datei_da(datei)) continue;
        Player_schalten(n, false);
        if (!Player_Datei_laden(n, datei)) return;
        Text titel, artist;
        mp3_.Lied_Tag_lesen(datei, titel, artist);
        felder_[n].Player_Artist.beschriftung(artist);
        felder_[n].Player_Titel.beschriftung(titel);
        return;
    }
}

}  // namespace tonkartei
