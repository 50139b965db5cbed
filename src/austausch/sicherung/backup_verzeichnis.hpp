// MP3_Info.BKV: the songs that are on CD already, by artist and title alone.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "datenbank/modell.hpp"

namespace tonkartei {

class Dateisystem;
class Fortschritts_Fenster;
class Kanäle;

inline constexpr const char* Backup_Verzeichnis_Name = "MP3_Info.BKV";
inline constexpr const char* Backup_Kopie_Name = "MP3_Bak.BKV";  // bare: lies in the current folder
inline constexpr int Backup_Verzeichnis_maximal = 5000;

class Backup_Verzeichnis {
public:
    Backup_Verzeichnis(const Modell& modell, Kanäle& kanäle, Dateisystem& dateien, Fortschritts_Fenster& fortschritt)
        : modell_(modell), kanäle_(kanäle), dateien_(dateien), fortschritt_(fortschritt) {}

    struct Eintrag {
        Text Artist, Titel;
    };
    // As last read; at most 5000.
    std::vector<Eintrag> Einträge;

    bool vorhanden() const;
    // False, after its box, when there is none. A file that is not what it should be is told as well, but counts as read:
    // with no entries when its head is wrong, with those in front of the damage otherwise.
    bool Backup_Verzeichnis_lesen();
    // True when the new file stands; until then the old one does, under its own name or as the copy.
    bool Backup_Verzeichnis_schreiben();

private:
    std::optional<Text> Inhalt_lesen(int nummer);

    const Modell& modell_;
    Kanäle& kanäle_;
    Dateisystem& dateien_;
    Fortschritts_Fenster& fortschritt_;
};

}  // namespace tonkartei
