#include "dj/ueberblendung.hpp"

#include "dj/fadetafel.hpp"
#include "dj/mischung.hpp"
#include "grundlagen/waehrend.hpp"

namespace tonkartei {
namespace {

// Who starts with each fade: between the pairs nobody, they run already.
constexpr int startet[] = {2, 1, 4, 3, 0, 0};

}  // namespace

Überblendung::Überblendung(Fadetafel& tafel, Mischung& mischung, DJ_Spieler& spieler, Spielerfelder& felder)
    : tafel_(tafel), mischung_(mischung), spieler_(spieler), felder_(felder) {
    for (int i = 1; i <= 6; ++i) tafel_.Start_Fade[i].Klick.verbinden([this, i] { Start_Fade_Klick(i); });
    for (int k = 1; k <= 3; ++k) tafel_.Start_Center[k].Klick.verbinden([this, k] { mischung_.Fader(k).in_die_Mitte(); });
    tafel_.Start_Automatik.Klick.verbinden([this] { Automatik_starten(); });
}

void Überblendung::beginnen() {
    Fades_ = {};
    for (int k = 1; k <= 3; ++k) mischung_.Fader(k).in_die_Mitte();
}

void Überblendung::Start_Fade_Klick(int Index) {
    const int k = (Index + 1) / 2;
    Fade& fade = Fade_von(k);
    fade.aktiv = !fade.aktiv;
    if (!fade.aktiv) return;
    const Long ticks = gerundet(static_cast<double>(Fadetafel::Sekunden(tafel_.Fadezeit)) * (1000.0 / Takt_ms));
    const double weg = Index % 2 == 1 ? Crossfader::Maximum : -Crossfader::Maximum;
    fade.Schritt = gerundet(weg / ticks);
    if (const int player = startet[Index - 1]; player > 0) spieler_.Player_schalten(player, true);
}

void Überblendung::Schritte_ausführen() {
    for (int k = 1; k <= 3; ++k)
        if (Fade_von(k).aktiv) Fade_Schritt_ausführen(k);
}

// A value at the very end stops nothing yet: the fade is over with the tick that would go beyond.
void Überblendung::Fade_Schritt_ausführen(int k) {
    Fade& fade = Fade_von(k);
    Crossfader& fader = mischung_.Fader(k);
    const Long neu = fader.wert() + fade.Schritt;
    const bool zu_Ende = neu < 0 || neu > Crossfader::Maximum;
    {
        // One message a player and tick: they are told below, once the player that has faded out is dealt with.
        const Während still(mischung_.still);
        fader.wert(neu);  // which keeps to its range
    }
    if (zu_Ende) {
        fade.aktiv = false;
        if (k < 3) ausgeblendet(neu < 0 ? 2 * k : 2 * k - 1);
    }
    spieler_.alle_Lautstärken_anwenden();
}

void Überblendung::ausgeblendet(int Player) {
    spieler_.Player_schalten(Player, false);
    spieler_.Nächstes_Lied(Player);
}

void Überblendung::Autozeit_prüfen(int Player, const DJ_Spieler::Zeit& zeit) {
    Spielerfeld& feld = felder_[Player];
    if (!feld.Player_Auto_1x.wert() && !feld.Player_Auto_Immer.wert()) return;
    const double rest = zeit.Länge - zeit.Position / 1000.0;
    const bool läuft = als_Long(static_cast<long long>(zeit.Länge) * zeit.Position) >= 1;
    if (Fadetafel::Sekunden(tafel_.Autozeit) < rest || !läuft || Fade_von((Player + 1) / 2).aktiv) return;
    Start_Fade_Klick(Player);
    feld.Player_Auto_1x.wert(false);
}

void Überblendung::Automatik_starten() {
    for (int n = 1; n <= Spieler_Anzahl; ++n) spieler_.Player_schalten(n, false);
    for (int k = 1; k <= 3; ++k) mischung_.Fader(k).wert(0);
    for (const int n : {1, 2}) felder_[n].Player_Auto_Immer.wert(true);
    spieler_.Nächstes_Lied(1);
    spieler_.Player_schalten(1, true);
    spieler_.Nächstes_Lied(2);
}

}  // namespace tonkartei
