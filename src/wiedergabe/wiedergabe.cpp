#include "wiedergabe/wiedergabe.hpp"

#include "plattform/plattform.hpp"

namespace tonkartei {

Wiedergabe::Wiedergabe(Modell& modell, Einstellungen& einstellungen, const Plattform& plattform, Kanäle& kanäle,
                       Ansicht& ansicht)
    : Steuerung(plattform.Fenstersystem),
      Suche(plattform.Fenstersystem, ansicht),
      Spieler(einstellungen, Steuerung, Suche, plattform.Rechner),
      Programm(einstellungen, plattform.Dateisystem, plattform.Shell, plattform.Rechner),
      Starter(modell, plattform.Dateisystem, ansicht, Spieler, Programm),
      Takt(ansicht, Spieler),
      Zählung(modell, einstellungen, Starter, plattform.Rechner),
      ABR(modell, plattform.Dateisystem, kanäle),
      Optionen(modell, einstellungen, ansicht, Spieler, Programm) {
    Starter.Takt.verbinden([this] { Takt.Timer_Timer(); });
}

}  // namespace tonkartei
