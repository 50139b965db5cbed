// The search for gaps: records whose file is missing. The last songs fill them.
#pragma once

#include "datenbank/modell.hpp"
#include "lieder/lied_nachruecken.hpp"
#include "oberflaeche/fortschritt.hpp"
#include "plattform/dateisystem.hpp"
#include "plattform/shell.hpp"

namespace tonkartei {

class Lücken {
public:
    Lücken(Modell& modell, Dateisystem& dateien, Shell& shell, Fortschritts_Fenster& fortschritt,
           Lied_nachrücken& nachrücken)
        : modell_(modell), dateien_(dateien), shell_(shell), fortschritt_(fortschritt), nachrücken_(nachrücken) {}

    // The command: asks, fills, reports. True when the songs have changed.
    bool Lücken_füllen();

private:
    Long füllen();
    Long Ende_kürzen();

    Modell& modell_;
    Dateisystem& dateien_;
    Shell& shell_;
    Fortschritts_Fenster& fortschritt_;
    Lied_nachrücken& nachrücken_;
};

}  // namespace tonkartei
