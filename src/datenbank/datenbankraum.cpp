#include "datenbank/datenbankraum.hpp"

#include "oberflaeche/ansicht.hpp"

namespace tonkartei {

Datenbankraum::Datenbankraum(Haus& h)
    : haus(h),
      registry(h.plattform.Registrierung),
      info(h.modell, h.kanäle, h.plattform.Dateisystem, h.fortschritt, h.plattform.Rechner.Temp_Verzeichnis()),
      zugriff(h.modell, h.kanäle, h.plattform.Rechner, h.ansicht),
      sitzung(h, info, zugriff),
      öffnen(h.ansicht, h.einstellungen, h.plattform.Dateisystem),
      m3u(h.modell, h.kanäle) {
    h.ansicht.vor_dem_Absturz = [this] {
        const bool gerettet = !sitzung.wechselt() && info.Gerettetes.schreiben();
        return gerettet ? Text("Der Stand der Datenbank wurde in der Datei ") + Rettung_Name + " gerettet." : Text{};
    };
}

}  // namespace tonkartei
