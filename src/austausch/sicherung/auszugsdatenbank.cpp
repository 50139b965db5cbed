#include "austausch/sicherung/auszugsdatenbank.hpp"

#include "datenbank/sitzung.hpp"
#include "lieder/hinzufuegen/dbadd_kategorien.hpp"
#include "lieder/hinzufuegen/neue_lieder_liste.hpp"

namespace tonkartei {

bool Auszugsdatenbank::anlegen(const std::vector<Long>& Nummern) {
    if (!modell_.Datenbank_offen || Nummern.empty()) return false;
    // All of it before the new collection takes the place of this one in memory.
    std::vector<Text> kategorien;
    for (int k = 1; k <= modell_.Anzahl_Kategorien; ++k) kategorien.push_back(modell_.Kategorien[k]);
    liste_.Reset();
    for (const Long nr : Nummern) {
        const Lied& lied = modell_.Lieder[nr];
        liste_.add_MP3_Tag(lied.Artist + " - " + lied.Titel);
        liste_.add_Lied(modell_.Lied_Pfad(nr), lied.Kategorie);
        liste_.add_MP3_Größe(lied.Größe);
    }
    if (!sitzung_.Datenbank_erstellen(false, true)) {
        liste_.entladen();
        return false;
    }
    zuordnung_.Quell_Kategorien = std::move(kategorien);
    liste_.activate(Quelle_Datenbank, false);
    return true;
}

}  // namespace tonkartei
