#include "wiedergabe/spielzaehlung.hpp"

#include "datenbank/einstellungen.hpp"
#include "datenbank/modell.hpp"
#include "plattform/rechner.hpp"

namespace tonkartei {

Spielzählung::Spielzählung(Modell& modell, const Einstellungen& einstellungen, Rechner& rechner)
    : modell_(modell), einstellungen_(einstellungen), rechner_(rechner) {}

long long Spielzählung::Sekunde_des_Tages() const {
    const Zeitpunkt jetzt = rechner_.jetzt();
    return jetzt.Stunde * 3600LL + jetzt.Minute * 60LL + jetzt.Sekunde;
}

void Spielzählung::Startwerte_setzen() {
    Letztes_Lied = 0;
    Letzte_Startzeit = Sekunde_des_Tages() - (einstellungen_.Anzahl_Zeit + 1LL);
}

void Spielzählung::zählen(Long Nr) {
    if (Letztes_Lied > 0) {
        // The clock is read only now, after the start: the second that it took belongs to the song before. Just after
        // midnight the limit lies below zero and does not wrap.
        const long long Grenze = Sekunde_des_Tages() - einstellungen_.Anzahl_Zeit;
        Long& anzahl = modell_.Lieder[Letztes_Lied].Anzahl;
        if (Letzte_Startzeit > Grenze) anzahl = als_Long(anzahl - 1LL);
    }
    Letztes_Lied = Nr;
    Letzte_Startzeit = Sekunde_des_Tages();
    in_Liste(Nr);
    Long& anzahl = modell_.Lieder[Nr].Anzahl;
    anzahl = als_Long(anzahl + 1LL);
    gezählt(Nr);
}

void Spielzählung::in_Liste(Long Nr) {
    if (Gespielt_Anzahl == Gespielt_maximal) {
        for (int i = 1; i < Gespielt_maximal; ++i) Gespielt_Liste[i] = Gespielt_Liste[i + 1];
    } else {
        ++Gespielt_Anzahl;
    }
    Gespielt_Liste[Gespielt_Anzahl] = Nr;
}

}  // namespace tonkartei
