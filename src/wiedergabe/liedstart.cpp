#include "wiedergabe/liedstart.hpp"

#include "liste/listenbereich.hpp"
#include "wiedergabe/abspieler.hpp"
#include "wiedergabe/wiedergabebereich.hpp"
#include "wiedergabe/zufall/listenfolge.hpp"
#include "wiedergabe/zufall/zufallslied.hpp"

namespace tonkartei {

Liedstart::Liedstart(Wiedergabebereich& bereich, Listenbereich& lieder, Listenfolge& folge, Zufallslied& zufall,
                     Abspieler& spieler)
    : bereich_(bereich), lieder_(lieder), folge_(folge), zufall_(zufall), spieler_(spieler) {
    bereich_.Lied_starten.Klick.verbinden([this] { Lied_starten(); });
    bereich_.Zufallslied_starten.Klick.verbinden([this] { Zufallslied_starten(); });
    bereich_.Zufallslied_starten.Rechtsklick.verbinden([this](int) { zufall_.Zufallslied_wählen(); });
}

void Liedstart::Lied_starten() {
    if (const Long nr = lieder_.gewähltes_Lied(); nr > 0) spieler_.starte_Lied(nr);
}

void Liedstart::Zufallslied_starten() {
    const bool der_Reihe_nach = bereich_.Autoplay.wert() && !bereich_.Autoplay_Random.wert();
    const Long nr = der_Reihe_nach ? nächstes_Lied() : zufall_.Zufallslied_wählen();
    if (nr >= 1) spieler_.starte_Lied(nr);
}

bool Liedstart::nächstes_starten() {
    if (folge_.leer()) return false;
    if (lieder_.Datenbank_Modus.wert() == 0 ? folge_.nächste_Zeile() : folge_.nächster_Titel()) Lied_starten();
    return true;
}

Long Liedstart::nächstes_Lied() {
    if (lieder_.Datenbank_Modus.wert() == 1) return folge_.nächster_Titel() ? lieder_.Album_Lied_Nr() : 0;
    const int vorher = lieder_.Liste.gewählt();
    if (!folge_.nächste_Zeile()) return 0;
    // From the last line the press only leads back to the first one.
    return lieder_.Liste.gewählt() > vorher ? lieder_.gewähltes_Lied() : 0;
}

}  // namespace tonkartei
