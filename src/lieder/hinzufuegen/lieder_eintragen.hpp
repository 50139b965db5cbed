// New songs whose files stand in the folder get their records, and a category from the user.
#pragma once

#include <functional>
#include <vector>

#include "datenbank/modell.hpp"
#include "kategorien/kategorie_wahl.hpp"
#include "lieder/hinzufuegen/uebernahme_auftrag.hpp"
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
    void mit_Kategorien(std::vector<Byte> Kategorien, Begleitung begleitung);

    // While songs are being entered. The editor gave the categories other numbers (0: gone, then it is asked for):
    void umnummerieren(const std::function<Byte(Byte)>& neue);
    // The program ends: the rest at once and unasked, with the first category where none was told.
    void abschließen();

private:
    // A run of mit_Kategorien.
    struct Lauf {
        std::vector<Byte> Kategorien;
        Begleitung begleitung;
        std::size_t gezählt = 0;    // songs that have their record
        std::size_t begleitet = 0;  // and their place in album and list file
    };
    void nächstes(Lauf& lauf, bool fragen);
    // The category of all, 0 when each song is to be asked for.
    Byte gemeinsame_Kategorie(Long A, Übernahmeart modus);
    void eintragen(Long Nr, Byte Kategorie, bool fragen);

    Modell& modell_;
    MP3_TagHead& mp3_;
    Kategorie_Wahl& wahl_;
    Lauf* lauf_ = nullptr;
};

}  // namespace tonkartei
