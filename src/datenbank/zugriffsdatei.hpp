// MP3_Info.DBG: says that the collection is open, where, by whom and since when.
#pragma once

#include "datenbank/modell.hpp"

namespace tonkartei {

class Ansicht;
class Kanäle;
class Rechner;

class Zugriffsdatei {
public:
    Zugriffsdatei(Modell& modell, Kanäle& kanäle, Rechner& rechner, Ansicht& ansicht)
        : modell_(modell), kanäle_(kanäle), rechner_(rechner), ansicht_(ansicht) {}

    // Writes it for the present moment; a failure is told and changes nothing else.
    void schreibe_Zugriffsdatei();
    // True with the outputs filled; false, after a message, when the file is not to be used.
    bool lese_Zugriffsdatei(const Text& Datei, Zeitpunkt& zeitpunkt, Text& Computer, Text& Benutzer);

private:
    Text Inhalt_lesen(int nummer, Zeitpunkt& zeitpunkt, Text& Computer, Text& Benutzer);

    Modell& modell_;
    Kanäle& kanäle_;
    Rechner& rechner_;
    Ansicht& ansicht_;
};

}  // namespace tonkartei
