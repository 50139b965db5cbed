// Backups in portions and the directory of what is on CD already, put together.
#pragma once

#include "austausch/sicherung/backup_befehle.hpp"
#include "austausch/sicherung/backup_datenbank.hpp"
#include "austausch/sicherung/backup_portionen.hpp"
#include "austausch/sicherung/backup_verzeichnis.hpp"
#include "austausch/sicherung/portionsdatei.hpp"
#include "austausch/sicherung/portionserstellung.hpp"
#include "datenbank/quell_datenbank.hpp"

namespace tonkartei {

struct Datenbankraum;
struct Liederraum;

struct Sicherung {
    Sicherung(Datenbankraum& datenbank, Liederraum& lieder, Quell_Datenbank& quelle);
    Sicherung(const Sicherung&) = delete;
    Sicherung& operator=(const Sicherung&) = delete;

    Portionsdatei portionsdatei;
    Backup_Datenbank datenbank;
    Backup_Verzeichnis verzeichnis;
    Portionserstellung erstellung;
    Backup_Portionen portionen;
    Backup_Befehle befehle;
};

}  // namespace tonkartei
