#include "wiedergabe/zufall/autoplay.hpp"

#include "datenbank/einstellungen.hpp"
#include "wiedergabe/liedstart.hpp"
#include "wiedergabe/wiedergabebereich.hpp"
#include "wiedergabe/winamp/winamp.hpp"
#include "wiedergabe/zufall/kategoriewechsel.hpp"

namespace tonkartei {
namespace {

constexpr int Fehlversuche_maximal = 3;

// A window that is found and says "stopped" in the middle of every start would have the starts nest without end: after so
// many within the first one it counts as no player at all.
constexpr int verschachtelte_Starts_maximal = 8;

}  // namespace

Autoplay::Autoplay(Einstellungen& einstellungen, const WinAmp& winamp, Wiedergabebereich& bereich, Liedstart& start,
                   Kategoriewechsel& wechsel)
    : einstellungen_(einstellungen), winamp_(winamp), bereich_(bereich), start_(start), wechsel_(wechsel) {
    bereich_.Autoplay.Klick.verbinden([this] { umgeschaltet(); });
    bereich_.Autoplay_Random.Klick.verbinden([this] { einstellungen_.Random_Autoplay = bereich_.Autoplay_Random.wert(); });
    bereich_.auto_Kat_Wechsel.Klick.verbinden([this] { Wechsel_umgeschaltet(); });
}

void Autoplay::umgeschaltet() {
    const bool an = bereich_.Autoplay.wert();
    bereich_.auto_Kat_Wechsel.sichtbar(an);
    if (an) {
        if (einstellungen_.auto_Kat_Wechsel_Status) wechsel_.beginnen();
        Autoplay_Start_ = true;
        Autoplay_Fehlzähler_ = 0;
    }
    bereich_.Zufallslied_starten.beschriftung(an ? "&nächstes" : "&Random");
}

void Autoplay::Wechsel_umgeschaltet() {
    einstellungen_.auto_Kat_Wechsel_Status = bereich_.auto_Kat_Wechsel.wert();
    if (einstellungen_.auto_Kat_Wechsel_Status && bereich_.Autoplay.wert()) wechsel_.beginnen();
}

void Autoplay::Schritt() {
    if (!bereich_.Autoplay.wert()) return;
    bool Starten = false;
    if (winamp_.WinAmp_da) {
        if (winamp_.WinAmp_Status == Status_gestoppt) {
            if (Tiefe_ > verschachtelte_Starts_maximal) {
                beenden();
                return;
            }
            Starten = true;
            wechsel_.Lied_vorbei();
        }
    } else if (Autoplay_Start_) {
        wechsel_.Lieder_seit_Wechsel = 0;
        Starten = true;
    } else if (++Autoplay_Fehlzähler_ > Fehlversuche_maximal) {
        beenden();
    }
    // Not after the start: the tick inside it would start a player that is slow, or broken, again and again.
    Autoplay_Start_ = false;
    if (Starten) starten();
}

void Autoplay::starten() {
    struct Stufe {
        int& tiefe;
        explicit Stufe(int& t) : tiefe(t) { ++tiefe; }
        ~Stufe() { --tiefe; }
        Stufe(const Stufe&) = delete;
        Stufe& operator=(const Stufe&) = delete;
    };
    const Stufe stufe(Tiefe_);
    if (einstellungen_.Random_Autoplay)
        start_.Zufallslied_starten();
    else if (!start_.nächstes_starten())
        beenden();
}

void Autoplay::beenden() { bereich_.Autoplay.wert(false); }

}  // namespace tonkartei
