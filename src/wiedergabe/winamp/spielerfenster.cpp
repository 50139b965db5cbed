#include "wiedergabe/winamp/spielerfenster.hpp"

namespace tonkartei {

Long Spielerfenster::Status() {
    if (Fenster == 0) return Status_gestoppt;
    return Status_ = steuerung_.WinAmp_Status_lesen(Fenster).value_or(Status_);
}

Long Spielerfenster::Position() {
    if (Fenster == 0) return 0;
    return Position_ = steuerung_.WinAmp_Position_lesen(Fenster).value_or(Position_);
}

Long Spielerfenster::Länge() {
    if (Fenster == 0) return 0;
    return Länge_ = steuerung_.WinAmp_Länge_lesen(Fenster).value_or(Länge_);
}

void Spielerfenster::Befehl(std::int32_t Code) {
    if (Fenster != 0) steuerung_.WinAmp_Befehl(Code, Fenster);
}

void Spielerfenster::springen(Long Millisekunden) {
    if (Fenster != 0) steuerung_.WinAmp_springen(Fenster, Millisekunden);
}

void Spielerfenster::Lautstärke(Long Wert) {
    if (Fenster != 0) steuerung_.WinAmp_Lautstärke_setzen(Fenster, Wert);
}

void Spielerfenster::verstecken() {
    if (Fenster != 0) steuerung_.verstecken(Fenster);
}

void Spielerfenster::zeigen() {
    if (Fenster != 0) steuerung_.zeigen(Fenster);
}

void Spielerfenster::schließen() {
    if (Fenster != 0) steuerung_.Fenster_schließen(Fenster);
}

}  // namespace tonkartei
