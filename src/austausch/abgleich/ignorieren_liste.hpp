// MP3_Info.LIL: songs of other collections, by artist and title, that are not offered again. They hold for every source.
#pragma once

#include <vector>

#include "datenbank/modell.hpp"

namespace tonkartei {

class Ansicht;
class Dateisystem;
class Kanäle;

inline constexpr const char* Ignorieren_Name = "MP3_Info.LIL";
inline constexpr const char* Ignorieren_Kopie_Name = "MP3_Bak.LIL";  // bare: lies in the current folder
inline constexpr int Ignorieren_maximal = 5000;

// The list belongs to the open collection; whether it is loaded and changed stands in the model, where another collection
// clears both.
class Ignorieren_Liste {
public:
    Ignorieren_Liste(Modell& modell, Kanäle& kanäle, Dateisystem& dateien, Ansicht& ansicht)
        : modell_(modell), kanäle_(kanäle), dateien_(dateien), ansicht_(ansicht) {}

    struct Eintrag {
        Text Artist, Titel;
    };
    const std::vector<Eintrag>& Einträge() const noexcept { return einträge_; }

    // Loads the list, or makes an empty file where there is none. False: the list is not to be used, as the user was told;
    // what was in memory stays.
    bool Ignorieren_lesen();
    bool geladen_oder_gelesen() { return modell_.Ignorieren_geladen || Ignorieren_lesen(); }
    // True when the new file stands; until then the old one does, under its own name or as the copy.
    bool Ignorieren_schreiben();
    // A place for one more song, from 1; 0 after a message when the list is full.
    Long Ignorieren_neu();

    void eintragen(Long Nr, Eintrag eintrag);
    void entfernen(Long Nr);

private:
    bool Inhalt_lesen(const Text& datei, int nummer);

    Modell& modell_;
    Kanäle& kanäle_;
    Dateisystem& dateien_;
    Ansicht& ansicht_;
    std::vector<Eintrag> einträge_;
};

}  // namespace tonkartei
