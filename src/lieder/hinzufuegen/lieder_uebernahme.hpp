// The commit of adding: questions first, then files, records and the warning about the size of the collection.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "datenbank/modell.hpp"
#include "lieder/hinzufuegen/dateien_uebernehmen.hpp"
#include "lieder/hinzufuegen/lieder_eintragen.hpp"
#include "lieder/hinzufuegen/uebernahme_auftrag.hpp"
#include "oberflaeche/ansicht.hpp"
#include "plattform/dateisystem.hpp"

namespace tonkartei {

class Lieder_Übernahme {
public:
    Lieder_Übernahme(Ansicht& ansicht, Modell& modell, Dateisystem& dateien, Dateien_übernehmen& übernehmen,
                     Lieder_eintragen& eintragen)
        : ansicht_(ansicht), modell_(modell), dateien_(dateien), übernehmen_(übernehmen), eintragen_(eintragen) {}

    // Stops the player, so that it lets go of its file; connected by the composition.
    std::function<void()> Winamp_anhalten;
    // Make an album or a list file of the `A` new songs and put what belongs to it into the company; without one nothing is
    // made.
    std::function<void(Long A, Begleitung&)> Album_erstellen;
    std::function<void(Long A, Begleitung&)> Playlist_erstellen;

    // Songs of another collection: the category of each of the `A` new ones, 0 where it is to be asked for.
    std::function<std::vector<Byte>(Long A, const std::vector<Lied_Fund>&)> Kategorien_zuordnen;
    // The same at once, with what the user has said so far.
    std::function<std::vector<Byte>(Long A, const std::vector<Lied_Fund>&)> Kategorien_ohne_Rückfrage;

    // False when the user decided against it before anything happened.
    bool ausführen(const Übernahme_Auftrag& auftrag);
    // Before the program saves for the last time: what a commit has brought so far becomes songs at once and unasked, in the
    // first category where none was told. A moved file is nowhere else, and the next commit would write over it.
    void abschließen();

    // Room on the volume of the collection in KByte, rounded down; 0 when it cannot be told.
    std::uint64_t freie_KByte() const;

private:
    struct Lauf {
        const Übernahme_Auftrag& auftrag;
        Long vorher;  // Anzahl_Lieder
        Begleitung begleitung;
        bool abgeschlossen = false;
    };
    void eintragen(Lauf& lauf, Long A);
    bool bestätigt(const Übernahme_Auftrag& auftrag) const;
    void vor_Größe_warnen() const;

    Ansicht& ansicht_;
    Modell& modell_;
    Dateisystem& dateien_;
    Dateien_übernehmen& übernehmen_;
    Lieder_eintragen& eintragen_;
    Lauf* lauf_ = nullptr;
};

}  // namespace tonkartei
