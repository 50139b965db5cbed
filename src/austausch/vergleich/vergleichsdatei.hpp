// *.MVD: what a collection tells of its songs, so that another collector can compare his with it. One song is 12 lines.
#pragma once

#include <functional>

#include "datenbank/modell.hpp"

namespace tonkartei {

class Dateisystem;
class Fortschritts_Fenster;
class Kanäle;

inline constexpr const char* Vergleichsdatei_Filter = "Datenbank-Vergleichsdatei (*.MVD)|*.MVD| Alle Dateien (*.*) |*.*";
inline constexpr const char* Vergleichsdatei_Kennung = "Datenbank Vergleichs-Datei";

// A song as the file tells it. The names are the lines as they stand: line breaks, double quotes and commas are written
// coded and never decoded, so a name with one of them equals no name here. That is how comparing has always been.
struct Vergleichslied {
    Text Artist, Titel;
    Long Größe = 0;
    Zeitpunkt Datum;
};

class Vergleichsdatei {
public:
    Vergleichsdatei(const Modell& modell, Kanäle& kanäle, Dateisystem& dateien, Fortschritts_Fenster& fortschritt)
        : modell_(modell), kanäle_(kanäle), dateien_(dateien), fortschritt_(fortschritt) {}

    // The menu's command: asks where to, and writes. A failure leaves the file half written.
    void Vergleichsdatei_erstellen();
    // The body behind the head, song by song: number there, how many there are, the song. Error 9 above 5000 songs.
    void lesen(int nummer, const std::function<void(Long Nr, Long Anzahl, const Vergleichslied& lied)>& je_Lied);

private:
    void schreiben(int nummer);

    const Modell& modell_;
    Kanäle& kanäle_;
    Dateisystem& dateien_;
    Fortschritts_Fenster& fortschritt_;
};

}  // namespace tonkartei
