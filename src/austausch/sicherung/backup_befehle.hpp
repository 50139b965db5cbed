// The menu commands around the backup directory and the backup warning.
#pragma once

#include "datenbank/modell.hpp"

namespace tonkartei {

class Backup_Verzeichnis;
class Fortschritts_Fenster;
class Quell_Datenbank;

class Backup_Befehle {
public:
    Backup_Befehle(Modell& modell, Fortschritts_Fenster& fortschritt, Backup_Verzeichnis& verzeichnis,
                   Quell_Datenbank& quelle)
        : modell_(modell), fortschritt_(fortschritt), verzeichnis_(verzeichnis), quelle_(quelle) {}

    void Backup_Verzeichnis_erstellen();
    void Backup_Verzeichnis_erweitern();
    void Backup_Warnung_ändern();

private:
    Long aufnehmen(const Bestand& backup);

    Modell& modell_;
    Fortschritts_Fenster& fortschritt_;
    Backup_Verzeichnis& verzeichnis_;
    Quell_Datenbank& quelle_;
};

}  // namespace tonkartei
