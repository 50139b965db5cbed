// The players' share of the tick, and the seek that waits for it.
#include <algorithm>
#include <cstdlib>

#include "dj/dj_spieler.hpp"
#include "grundlagen/waehrend.hpp"
#include "oberflaeche/ansicht.hpp"

namespace tonkartei {
namespace {

// What the digits stand at when nothing plays: 99 minutes and 99 seconds.
constexpr Long keine_Zeit = 99 * 60 + 99;

// A 32-bit product, by which a song of more than 1466 seconds ends the run near its end. It stays that way.
Long Länge_mal_Position(const DJ_Spieler::Zeit& zeit) {
    return als_Long(static_cast<long long>(zeit.Länge) * zeit.Position);
}

}  // namespace

DJ_Spieler::Zeit DJ_Spieler::Zeit_zeigen(int n) {
    Einzelner& einer = Spieler(n);
    if (einer.Sprung >= 0) {
        einer.prozess.Fenster.springen(einer.Sprung);
        einer.Sprung = -1;
    }
    const Zeit zeit{einer.prozess.Fenster.Länge(), einer.prozess.Fenster.Position()};
    Ziffern_zeigen(n, zeit);
    const Während gesperrt(einer.Position_Sperre);
    Position_zeigen(n, zeit);
    return zeit;
}

// Minutes of the hour: a song of 65 minutes counts up to 59 and starts again at 0.
void DJ_Spieler::Ziffern_zeigen(int n, const Zeit& zeit) {
    const bool läuft = zeit.Position >= 0;
    const long long ganz = läuft ? zeit.Länge : keine_Zeit;
    const long long vergangen = läuft ? gerundet(zeit.Position / 1000.0) : keine_Zeit;
    const bool abwärts = !felder_[n].Player_Minus.beschriftung().empty();
    // A time of day has no sign.
    const long long sekunden = std::llabs(abwärts ? ganz - vergangen : vergangen);
    felder_[n].Player_Minuten.beschriftung(Zahl_mit_Nullen(sekunden / 60 % 60, 2));
    felder_[n].Player_Sekunden.beschriftung(Zahl_mit_Nullen(sekunden % 60, 2));
}

void DJ_Spieler::Position_zeigen(int n, const Zeit& zeit) {
    Regler& regler = felder_[n].Player_Position;
    if (Länge_mal_Position(zeit) < 1) return regler.wert(regler.min());
    const double prozent = zeit.Position / (zeit.Länge * 1000.0 / 100);
    regler.wert(gerundet(std::clamp<double>(regler.max() * prozent / 100, regler.min(), regler.max())));
}

void DJ_Spieler::gesprungen(int n) {
    Einzelner& einer = Spieler(n);
    if (einer.Position_Sperre) return;
    const Regler& regler = felder_[n].Player_Position;
    einer.Sprung = gerundet(regler.wert() / (regler.max() / 100.0) / 100 * einer.prozess.Fenster.Länge() * 1000);
}

void DJ_Spieler::Ende_prüfen(int n) {
    if (!Player_spielt(n) || Spieler(n).prozess.Fenster.Status() == Status_spielt) return;
    Player_schalten(n, false);
    Nächstes_Lied(n);
}

}  // namespace tonkartei
