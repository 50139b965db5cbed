#include "austausch/abgleich/abgleich.hpp"

#include "datenbank/datenbankraum.hpp"
#include "kategorien/kategorienraum.hpp"
#include "lieder/liederraum.hpp"

namespace tonkartei {

Abgleich::Abgleich(Datenbankraum& d, Kategorienraum& kategorien, Liederraum& lieder, Quell_Datenbank& quelle,
                   const Abgleichswerkzeug& werkzeug)
    : ignorierte(d.haus.modell, d.haus.kanäle, d.haus.plattform.Dateisystem, d.haus.ansicht),
      liste(d.haus.ansicht, ignorierte),
      übernahme(d.haus.modell, d.haus.plattform.Dateisystem, d.haus.plattform.Shell, lieder.mp3, kategorien.wahl),
      fenster(d.haus.modell, übernahme, liste, kategorien.bearbeiten, werkzeug),
      befehl(d.haus.modell, d.haus.plattform.Dateisystem, d.haus.fortschritt, quelle, fenster),
      modell_(d.haus.modell) {
    d.info.Ignorieren_schreiben = [this] { return ignorierte.Ignorieren_schreiben(); };
}

void Abgleich::zeige_Ignorieren_Liste(Fenster& Aufrufer) {
    if (modell_.Datenbank_offen) liste.anzeigen(Aufrufer);
}

void Abgleich::entladen() {
    liste.entladen();
    fenster.entladen();
}

}  // namespace tonkartei
