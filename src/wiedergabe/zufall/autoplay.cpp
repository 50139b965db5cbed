#include "wiedergabe/zufall/autoplay.hpp"

#include "datenbank/einstellungen.hpp"
#include "liste/listenbereich.hpp"
#include "wiedergabe/wiedergabebereich.hpp"
#include "wiedergabe/winamp/winamp.hpp"
#include "wiedergabe/zufall/kategoriewechsel.hpp"
#include "wiedergabe/zufall/listenfolge.hpp"

namespace tonkartei {
namespace {

constexpr int Fehlversuche_maximal = 3;

}  // namespace

Autoplay::Autoplay(Einstellungen& einstellungen, const WinAmp& winamp, Wiedergabebereich& bereich, Listenbereich& lieder,
                   Listenfolge& folge, Kategoriewechsel& wechsel)
    : einstellungen_(einstellungen), winamp_(winamp), bereich_(bereich), lieder_(lieder), folge_(folge), wechsel_(wechsel) {
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
    if (einstellungen_.Random_Autoplay)
        bereich_.Zufallslied_starten.Klick();
    else
        der_Reihe_nach();
}

void Autoplay::der_Reihe_nach() {
    if (lieder_.Datenbank_Modus.wert() == 0) {
        if (!folge_.nächste_Zeile()) {
            beenden();
            return;
        }
    } else {
        if (lieder_.Album_Nr() < 1 || lieder_.Liste2.Anzahl() == 0) {
            beenden();
            return;
        }
        if (!folge_.nächster_Titel()) return;
    }
    bereich_.Lied_starten.Klick();
}

void Autoplay::beenden() { bereich_.Autoplay.wert(false); }

}  // namespace tonkartei
