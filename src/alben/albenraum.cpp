#include "alben/albenraum.hpp"

#include "datenbank/datenbankraum.hpp"

namespace tonkartei {

Albenraum::Albenraum(Datenbankraum& datenbank)
    : alben(datenbank.haus.plattform.Rechner, datenbank.haus.ansicht),
      datei(datenbank.haus.modell, alben, datenbank.haus.kanäle, datenbank.haus.plattform.Dateisystem,
            datenbank.haus.ansicht),
      wählen(datenbank.haus.ansicht, alben),
      start(datenbank.haus.modell, datenbank.haus.einstellungen, alben, datenbank.m3u, datenbank.haus.ansicht),
      befehle(datenbank.haus.modell, datei, wählen, start, datenbank.haus.ansicht) {
    datenbank.info.Alben_schreiben = [this] { return datei.Alben_schreiben(); };
    // The albums of the collection before need no memory any more.
    datenbank.sitzung.geladen.verbinden([this, &modell = datenbank.haus.modell](bool) {
        if (!modell.Alben_geladen) alben.eigene = {};
    });
}

}  // namespace tonkartei
