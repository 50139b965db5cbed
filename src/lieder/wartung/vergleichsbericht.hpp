// Where records and song files disagree, as a text file for a person.
#pragma once

#include "datenbank/modell.hpp"
#include "mp3/mp3_taghead.hpp"
#include "oberflaeche/fortschritt.hpp"
#include "plattform/dateisystem.hpp"
#include "plattform/kanaele.hpp"

namespace tonkartei {

class Vergleichsbericht {
public:
    Vergleichsbericht(Modell& modell, Kanäle& kanäle, Dateisystem& dateien, MP3_TagHead& mp3,
                      Fortschritts_Fenster& fortschritt)
        : modell_(modell), kanäle_(kanäle), dateien_(dateien), mp3_(mp3), fortschritt_(fortschritt) {}

    // Asks for the file, compares all songs and tells how many have faults. No record is changed.
    void Check_DB();

private:
    Long schreiben(int nummer);
    bool Lied_prüfen(Long Nr, bool erstes, int nummer);

    Modell& modell_;
    Kanäle& kanäle_;
    Dateisystem& dateien_;
    MP3_TagHead& mp3_;
    Fortschritts_Fenster& fortschritt_;
};

}  // namespace tonkartei
