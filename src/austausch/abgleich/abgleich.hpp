// The live comparison with its ignore list, put together.
#pragma once

#include "austausch/abgleich/abgleich_uebernahme.hpp"
#include "austausch/abgleich/abgleichslauf.hpp"
#include "austausch/abgleich/ignorieren_liste.hpp"
#include "austausch/abgleich/la_ignorieren.hpp"
#include "austausch/abgleich/live_abgleich.hpp"

namespace tonkartei {

struct Datenbankraum;
struct Kategorienraum;
struct Liederraum;

struct Abgleich {
    Abgleich(Datenbankraum& datenbank, Kategorienraum& kategorien, Liederraum& lieder, Quell_Datenbank& quelle,
             const Abgleichswerkzeug& werkzeug);
    Abgleich(const Abgleich&) = delete;
    Abgleich& operator=(const Abgleich&) = delete;

    // The menu's command; `Aufrufer` is the main window.
    void zeige_Ignorieren_Liste(Fenster& Aufrufer);
    // Closes its windows.
    void entladen();

    Ignorieren_Liste ignorierte;
    LA_Ignorieren liste;
    Abgleich_Übernahme übernahme;
    Live_abgleich fenster;
    Abgleichslauf befehl;

private:
    const Modell& modell_;
};

}  // namespace tonkartei
