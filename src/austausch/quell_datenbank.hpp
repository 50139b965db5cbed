// Another collection, read whole from its info file; nothing in its folder is changed.
#pragma once

#include <optional>

#include "datenbank/modell.hpp"

namespace tonkartei {

class Dateisystem;
class Fortschritts_Fenster;
class Kanäle;
class Rechner;

class Quell_Datenbank {
public:
    Quell_Datenbank(const Modell& modell, Kanäle& kanäle, Dateisystem& dateien, Rechner& rechner,
                    Fortschritts_Fenster& fortschritt)
        : modell_(modell), kanäle_(kanäle), dateien_(dateien), rechner_(rechner), fortschritt_(fortschritt) {}

    // Whether there is a collection in that folder (trailing separator).
    bool vorhanden(const Text& Ordner) const;
    // What its info file holds. Another version is asked about and converted as on opening, in its own folder, or in the
    // temporary one, where it does not stay. None: declined, or the user was
    // told of the failure.
    std::optional<Bestand> lesen(const Text& Ordner);

private:
    const Modell& modell_;
    Kanäle& kanäle_;
    Dateisystem& dateien_;
    Rechner& rechner_;
    Fortschritts_Fenster& fortschritt_;
};

}  // namespace tonkartei
