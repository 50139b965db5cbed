#include "wiedergabe/abspieler.hpp"

#include "datenbank/modell.hpp"
#include "wiedergabe/spielzaehlung.hpp"
#include "wiedergabe/winamp/winamp_starter.hpp"

namespace tonkartei {

void Abspieler::starte_Lied(Long Nr) {
    if (!modell_.Datenbank_offen) return;
    if (starter_.starte_WinAmp_Datei(modell_.Lied_Pfad(Nr))) zählung_.zählen(Nr);
}

}  // namespace tonkartei
