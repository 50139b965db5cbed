#include "wiedergabe/wiedergabe.hpp"

#include "datenbank/haus.hpp"

namespace tonkartei {

Wiedergabe::Wiedergabe(Haus& haus)
    : Steuerung(haus.plattform.Fenstersystem),
      Suche(haus.plattform.Fenstersystem, haus.ansicht),
      Spieler(WinAmp_Klasse, haus.einstellungen, Steuerung, Suche, haus.plattform.Rechner),
      Programm(WinAmp_Klasse, haus.einstellungen, haus.plattform.Dateisystem, haus.plattform.Shell, haus.plattform.Rechner),
      Starter(haus.plattform.Dateisystem, haus.ansicht, Spieler, Programm),
      Takt(haus.ansicht, Spieler),
      Zählung(haus.modell, haus.einstellungen, haus.plattform.Rechner),
      Abspieler(haus.modell, Starter, Zählung),
      ABR(haus.modell, haus.plattform.Dateisystem, haus.kanäle),
      Optionen(haus.einstellungen, haus.ansicht, Spieler, Programm) {
    Starter.Takt.verbinden([this] { Takt.Timer_Timer(); });
}

}  // namespace tonkartei
