// The export of the list, put together.
#pragma once

#include "ausgabe/datei_ausgabe.hpp"
#include "datenbank/haus.hpp"

namespace tonkartei {

struct Ausgaberaum {
    // `liste` is the main window's area.
    Ausgaberaum(Haus& haus, const Listenbereich& liste)
        : ausgabe(haus.modell, haus.plattform.Dateisystem, haus.kanäle, haus.fortschritt),
          dialog(haus.ansicht, haus.plattform.Dateisystem, ausgabe, liste) {}
    Ausgaberaum(const Ausgaberaum&) = delete;
    Ausgaberaum& operator=(const Ausgaberaum&) = delete;

    Liedausgabe ausgabe;
    Datei_ausgabe dialog;
};

}  // namespace tonkartei
