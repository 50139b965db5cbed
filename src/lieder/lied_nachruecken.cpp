#include "lieder/lied_nachruecken.hpp"

#include "alben/alben_datei.hpp"
#include "datenbank/abr_datei.hpp"
#include "datenbank/modell.hpp"

namespace tonkartei {

void Lied_nachrücken::ausführen(Long Nr) {
    const Long letzte = modell_.Anzahl_Lieder;
    alben_.Album_Referenz_ändern(Nr, 0);
    alben_.Album_Referenz_ändern(letzte, Nr);
    Alben_geändert();
    // One below the number that moves, ever since: the statistic of the moved song stays on its old number.
    abr_.ABR_umnummerieren(letzte - 1, Nr);
    modell_.Lieder[Nr] = modell_.Lieder[letzte];
}

}  // namespace tonkartei
