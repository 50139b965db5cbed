// The commit of adding: questions first, then files, records and the warning about the size of the collection.
#pragma once

#include <cstdint>

#include "datenbank/haus.hpp"
#include "lieder/hinzufuegen/dateien_uebernehmen.hpp"
#include "lieder/hinzufuegen/lieder_eintragen.hpp"
#include "lieder/hinzufuegen/uebernahme_auftrag.hpp"

namespace tonkartei {

class DBadd_Kategorien;
struct Begleiter;

class Lieder_Übernahme {
public:
    Lieder_Übernahme(Haus& haus, Dateien_übernehmen& übernehmen, Begleiter& begleiter, DBadd_Kategorien& zuordnung,
                     Lieder_eintragen& eintragen)
        : ansicht_(haus.ansicht),
          modell_(haus.modell),
          dateien_(haus.plattform.Dateisystem),
          übernehmen_(übernehmen),
          begleiter_(begleiter),
          zuordnung_(zuordnung),
          eintragen_(eintragen) {}

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
    Begleiter& begleiter_;
    DBadd_Kategorien& zuordnung_;
    Lieder_eintragen& eintragen_;
    Lauf* lauf_ = nullptr;
};

}  // namespace tonkartei
