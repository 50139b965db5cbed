// The commands of the main window that add songs: each source collects files and hands them to neue_Lieder_Liste.
#pragma once

#include "datenbank/einstellungen.hpp"
#include "datenbank/modell.hpp"
#include "lieder/neue_lieder_liste.hpp"
#include "lieder/verzeichnis_add.hpp"
#include "plattform/dateisystem.hpp"

namespace tonkartei {

class Lieder_hinzufügen {
public:
    Lieder_hinzufügen(const Modell& modell, Dateisystem& dateien, Einstellungen& einstellungen, Verzeichnis_add& verzeichnis,
                      neue_Lieder_Liste& liste)
        : modell_(modell), dateien_(dateien), einstellungen_(einstellungen), verzeichnis_(verzeichnis), liste_(liste) {}

    // All MP3 files of one folder. Does nothing while no collection is open.
    void Lieder_hinzufügen_Verzeichnis();

private:
    void Verzeichnis_merken(const Text& pfad);
    bool hat_Inhalt(const Text& pfad) const;

    const Modell& modell_;
    Dateisystem& dateien_;
    Einstellungen& einstellungen_;
    Verzeichnis_add& verzeichnis_;
    neue_Lieder_Liste& liste_;
};

}  // namespace tonkartei
