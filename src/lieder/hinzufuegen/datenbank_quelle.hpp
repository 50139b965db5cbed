// The source of new songs that is another collection: its songs, chosen by category.
#pragma once

#include "datenbank/datenbank_oeffnen.hpp"
#include "datenbank/haus.hpp"
#include "lieder/hinzufuegen/db_add_start_kategorien.hpp"
#include "lieder/hinzufuegen/dbadd_kategorien.hpp"
#include "lieder/hinzufuegen/neue_lieder_liste.hpp"

namespace tonkartei {

class Datenbank_Quelle {
public:
    Datenbank_Quelle(Haus& haus, Datenbank_öffnen& öffnen, DB_add_start_Kategorien& start_Kategorien,
                     DBadd_Kategorien& zuordnung, neue_Lieder_Liste& liste)
        : modell_(haus.modell),
          dateien_(haus.plattform.Dateisystem),
          kanäle_(haus.kanäle),
          rechner_(haus.plattform.Rechner),
          fortschritt_(haus.fortschritt),
          öffnen_(öffnen),
          start_Kategorien_(start_Kategorien),
          zuordnung_(zuordnung),
          liste_(liste) {}

    // Does nothing while no collection is open.
    void add_Datenbank();

private:
    struct Fund {
        Text Dateiname, Artist_Titel;
        Long Größe = 0;
        Byte Kategorie = 0;
    };
    bool sammeln(const Text& ordner, std::vector<Fund>& funde);
    bool lesen(const Text& datei, int& nummer, std::vector<Fund>& funde);
    std::vector<Text> Kategorien_lesen(int nummer);

    const Modell& modell_;
    Dateisystem& dateien_;
    Kanäle& kanäle_;
    Rechner& rechner_;
    Fortschritts_Fenster& fortschritt_;
    Datenbank_öffnen& öffnen_;
    DB_add_start_Kategorien& start_Kategorien_;
    DBadd_Kategorien& zuordnung_;
    neue_Lieder_Liste& liste_;
};

}  // namespace tonkartei
