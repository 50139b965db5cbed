// New songs whose files stand in the folder get their records, and a category from the user.
#pragma once

#include <functional>
#include <vector>

#include "datenbank/modell.hpp"
#include "kategorien/kategorie_wahl.hpp"
#include "lieder/uebernahme_auftrag.hpp"
#include "mp3/mp3_taghead.hpp"

namespace tonkartei {

class Lieder_eintragen {
public:
    Lieder_eintragen(Modell& modell, MP3_TagHead& mp3, Kategorie_Wahl& wahl) : modell_(modell), mp3_(mp3), wahl_(wahl) {}

    // Rebuilds the song list of the main window; connected by the composition.
    std::function<void()> Liste_neu_aufbauen;

    // Enters the files behind Anzahl_Lieder, `A` of them, and counts them in.
    void ausführen(Long A, Übernahmeart modus, const Begleitung& begleitung);
    // The same with a category for each new song, 0 where it is to be asked for; nothing is said about the number.
    void mit_Kategorien(const std::vector<Byte>& Kategorien, Begleitung begleitung);

private:
    // The category of all, 0 when each song is to be asked for.
    Byte gemeinsame_Kategorie(Long A, Übernahmeart modus);
    void eintragen(Long Nr, Byte Kategorie);

    Modell& modell_;
    MP3_TagHead& mp3_;
    Kategorie_Wahl& wahl_;
};

}  // namespace tonkartei
