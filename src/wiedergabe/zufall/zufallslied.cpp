#include "wiedergabe/zufall/zufallslied.hpp"

#include "datenbank/einstellungen.hpp"
#include "datenbank/modell.hpp"
#include "liste/listenbereich.hpp"
#include "plattform/rechner.hpp"
#include "wiedergabe/spielzaehlung.hpp"
#include "wiedergabe/zufall/zufallsliste.hpp"

namespace tonkartei {
namespace {

constexpr int Versuche_maximal = 100;

}  // namespace

Zufallslied::Zufallslied(const Modell& modell, const Einstellungen& einstellungen, const Spielzählung& zählung,
                         Rechner& rechner, Listenbereich& lieder)
    : modell_(modell), einstellungen_(einstellungen), zählung_(zählung), rechner_(rechner), lieder_(lieder) {}

Zufallsliste Zufallslied::Liste_im_Blick() const {
    const auto im_Blick = lieder_.Lieder_im_Blick();
    const bool Album = lieder_.Datenbank_Modus.wert() == 1;
    Zufallsliste liste;
    liste.vormerken(im_Blick.size());
    for (const auto& [zeile, nr] : im_Blick) liste.hinzufügen(modell_.Lieder[nr].Anzahl, nr, Album ? zeile : 0);
    liste.sortieren();
    return liste;
}

bool Zufallslied::vor_kurzem_gespielt(Long Nr) const {
    for (Long i = 1; i <= zählung_.Gespielt_Anzahl; ++i)
        if (zählung_.Gespielt_Liste[i] == Nr) return true;
    return false;
}

Long Zufallslied::Zufallslied_wählen() {
    const Zufallsliste liste = Liste_im_Blick();
    if (liste.leer()) return 0;
    int Versuche = 0, Index = 0;
    Long nr = 0;
    do {
        ++Versuche;
        Index = liste.ziehe(einstellungen_.Random_Einstellung, rechner_.Zufallszahl());
        nr = liste.Nr(Index);
    } while (vor_kurzem_gespielt(nr) && Versuche <= Versuche_maximal);
    if (lieder_.Datenbank_Modus.wert() == 0)
        lieder_.wähle_Lied(nr);
    else
        lieder_.Liste2.wähle(liste.letztes_Feld(Index));
    return nr;
}

}  // namespace tonkartei
