#include "wiedergabe/zufall/listenfolge.hpp"

#include "grundlagen/waehrend.hpp"
#include "liste/listenbereich.hpp"
#include "oberflaeche/ansicht.hpp"

namespace tonkartei {
namespace {

void weiter(Listenfeld& liste) { liste.wähle(liste.gewählt() + 1 < liste.Anzahl() ? liste.gewählt() + 1 : 0); }

}  // namespace

bool Listenfolge::leer() const {
    if (lieder_.Datenbank_Modus.wert() == 0) return lieder_.Liste.Anzahl() == 0;
    return lieder_.Album_Nr() < 1 || lieder_.Liste2.Anzahl() == 0;
}

bool Listenfolge::nächste_Zeile() {
    if (lieder_.Liste.Anzahl() == 0) return false;
    weiter(lieder_.Liste);
    return true;
}

bool Listenfolge::nächster_Titel() {
    // The timer runs on during a search without end: it must not begin another one inside.
    if (sucht_) return false;
    const Während suche(sucht_);
    while (lieder_.Album_Nr() > 0 && lieder_.Liste2.Anzahl() > 0) {
        weiter(lieder_.Liste2);
        if (lieder_.Album_Lied_Nr() > 0) return true;
        ansicht_.Ereignisse_laufen_lassen();
    }
    return false;
}

}  // namespace tonkartei
