// What every room stands on: the machine, the user, and what all of them share of the open collection.
#pragma once

#include "datenbank/einstellungen.hpp"
#include "datenbank/modell.hpp"
#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/fortschritt.hpp"
#include "plattform/kanaele.hpp"
#include "plattform/plattform.hpp"

namespace tonkartei {

struct Haus {
    Haus(const Plattform& p, Ansicht& a) : plattform(p), ansicht(a) {}
    Haus(const Haus&) = delete;
    Haus& operator=(const Haus&) = delete;

    const Plattform plattform;
    Ansicht& ansicht;
    Modell modell;
    Einstellungen einstellungen;
    Kanäle kanäle{plattform.Dateisystem};
    Fortschritts_Fenster fortschritt{ansicht};
};

}  // namespace tonkartei
