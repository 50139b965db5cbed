// The export of the list, put together.
#pragma once

#include "ausgabe/datei_ausgabe.hpp"
#include "oberflaeche/fortschritt.hpp"
#include "plattform/plattform.hpp"

namespace tonkartei {

struct Ausgaberaum {
    // `liste` is the main window's area.
    Ausgaberaum(const Modell& modell, const Plattform& plattform, Kanäle& kanäle, Fortschritts_Fenster& fortschritt,
                const Listenbereich& liste)
        : ausgabe(modell, plattform.Dateisystem, kanäle, fortschritt),
          dialog(fortschritt.ansicht(), plattform.Dateisystem, ausgabe, liste) {}
    Ausgaberaum(const Ausgaberaum&) = delete;
    Ausgaberaum& operator=(const Ausgaberaum&) = delete;

    Liedausgabe ausgabe;
    Datei_ausgabe dialog;
};

}  // namespace tonkartei
