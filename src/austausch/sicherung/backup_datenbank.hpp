// Making a collection from a portion file.
#pragma once

#include "grundlagen/text.hpp"

namespace tonkartei {

class Ansicht;
class Auszugsdatenbank;
class Dateisystem;
class Portionsdatei;
struct Modell;

class Backup_Datenbank {
public:
    Backup_Datenbank(const Modell& modell, Ansicht& ansicht, Dateisystem& dateien, Portionsdatei& datei,
                     Auszugsdatenbank& auszug)
        : modell_(modell), ansicht_(ansicht), dateien_(dateien), datei_(datei), auszug_(auszug) {}

    // The menu's command: asks for the file.
    void Menü_Backup_anlegen();
    // Nothing, without a word, for an empty name or a file that is not there.
    void Backup_Datenbank_anlegen(const Text& Datei);

private:
    const Modell& modell_;
    Ansicht& ansicht_;
    Dateisystem& dateien_;
    Portionsdatei& datei_;
    Auszugsdatenbank& auszug_;
};

}  // namespace tonkartei
