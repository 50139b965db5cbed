#include "lieder/liederraum.hpp"

#include "alben/albenraum.hpp"
#include "datenbank/datenbankraum.hpp"
#include "kategorien/kategorienraum.hpp"
#include "wiedergabe/wiedergabe.hpp"

namespace tonkartei {

Liederraum::Liederraum(Datenbankraum& d, Albenraum& alben, Kategorienraum& kategorien, Wiedergabe& wiedergabe,
                       Listenbereich& liste)
    : mp3(d.haus.plattform.Dateisystem),
      nachrücken(d.haus.modell, alben.datei, wiedergabe.ABR),
      entfernen(d.haus, nachrücken, wiedergabe.Spieler),
      lücken(d.haus.modell, d.haus.plattform.Dateisystem, d.haus.plattform.Shell, d.haus.fortschritt, nachrücken),
      kopieren(d.haus.modell, d.haus.plattform.Shell, d.haus.fortschritt),
      austauschen(d.haus, mp3, entfernen, kopieren),
      bearbeiten(d.haus.modell, mp3, d.haus.ansicht),
      anzahl(d.haus.modell, d.haus.ansicht),
      hinzufügen(d, mp3, alben, kategorien, wiedergabe),
      einlesen(d.haus.modell, mp3, d.haus.fortschritt),
      vergleichsbericht(d.haus.modell, d.haus.kanäle, d.haus.plattform.Dateisystem, mp3, d.haus.fortschritt),
      datum_eingeben(d.haus.ansicht, d.haus.plattform.Rechner),
      wartung(d.haus, einlesen, datum_eingeben, liste) {
    d.sitzung.Lieder_einlesen = [this] { einlesen.alle_Lieder_einlesen(); };
}

}  // namespace tonkartei
