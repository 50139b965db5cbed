#include "datenbank/datenbankraum.hpp"

namespace tonkartei {

Datenbankraum::Datenbankraum(Haus& h)
    : haus(h),
      registry(h.plattform.Registrierung),
      info(h.modell, h.kanäle, h.plattform.Dateisystem, h.ansicht, h.fortschritt),
      konvertierung(h.modell, h.kanäle, h.plattform.Dateisystem, h.ansicht, h.fortschritt,
                    h.plattform.Rechner.Temp_Verzeichnis()),
      zugriff(h.modell, h.kanäle, h.plattform.Rechner, h.ansicht),
      sitzung(h.modell, h.einstellungen, info, zugriff, h.plattform, h.ansicht),
      öffnen(h.ansicht, h.einstellungen, h.plattform.Dateisystem),
      m3u(h.modell, h.kanäle) {
    info.konvertiere_1_00 = [this](Text& datei, int& nummer) { return konvertierung.konvertiere_1_00(datei, nummer); };
    info.konvertiere_1_01 = [this](Text& datei, int& nummer) { return konvertierung.konvertiere_1_01(datei, nummer); };
}

}  // namespace tonkartei
