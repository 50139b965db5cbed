// The source of new songs that is another collection: its songs, chosen by category.
#pragma once

#include "datenbank/datenbank_oeffnen.hpp"
#include "datenbank/haus.hpp"
#include "datenbank/quell_datenbank.hpp"
#include "lieder/hinzufuegen/db_add_start_kategorien.hpp"
#include "lieder/hinzufuegen/dbadd_kategorien.hpp"
#include "lieder/hinzufuegen/neue_lieder_liste.hpp"

namespace tonkartei {

class Datenbank_Quelle {
public:
    Datenbank_Quelle(Haus& haus, Datenbank_öffnen& öffnen, DB_add_start_Kategorien& start_Kategorien,
                     DBadd_Kategorien& zuordnung, neue_Lieder_Liste& liste)
        : haus_(haus), öffnen_(öffnen), start_Kategorien_(start_Kategorien), zuordnung_(zuordnung), liste_(liste) {}

    // Does nothing while no collection is open.
    void add_Datenbank();

private:
    bool sammeln(const Text& ordner);

    Haus& haus_;
    Datenbank_öffnen& öffnen_;
    DB_add_start_Kategorien& start_Kategorien_;
    DBadd_Kategorien& zuordnung_;
    neue_Lieder_Liste& liste_;
};

}  // namespace tonkartei
