// Dissolving a collection: its numbered files are copied or moved into an ordinary folder tree. The records stay as they
// are, so after moving every one of them is a gap.
#pragma once

#include <set>

#include "austausch/aufloesung/ablageplan.hpp"

namespace tonkartei {

class Ansicht;
class Dateisystem;
class Fortschritts_Fenster;
class Shell;

class Datenbank_Auflösung {
public:
    Datenbank_Auflösung(const Modell& modell, Dateisystem& dateien, Shell& shell, Fortschritts_Fenster& fortschritt)
        : modell_(modell), dateien_(dateien), shell_(shell), fortschritt_(fortschritt) {}

    // `Ziel` is a folder with trailing separator. Equal names are the shell's question, song by song; what fails is passed
    // over, a name that the file system cannot hold with a box.
    void ausführen(const Ablageplan& plan, const Text& Ziel, bool bewegen);

private:
    void Ordner_anlegen(const Ablageplan& plan, const Text& Ziel);
    void übertragen(const Text& von, const Text& nach, bool bewegen);
    void Fehler_zeigen(const Text& pfad, int nummer);

    const Modell& modell_;
    Dateisystem& dateien_;
    Shell& shell_;
    Fortschritts_Fenster& fortschritt_;
    std::set<Text> gemeldet_;  // folders of this run that could not be made: told once, not for each of their songs
};

}  // namespace tonkartei
