#include "lieder/hinzufuegen/auszugsdatenbank.hpp"

#include "datenbank/sitzung.hpp"
#include "lieder/hinzufuegen/dbadd_kategorien.hpp"
#include "lieder/hinzufuegen/neue_lieder_liste.hpp"

namespace tonkartei {

void Auszugsdatenbank::beginnen() {
    zuordnung_.eigene_als_Quelle();
    liste_.Reset();
}

void Auszugsdatenbank::aufnehmen(const Text& Name, const Text& Pfad, Byte Kategorie, Long Größe) {
    liste_.add_MP3_Tag(Name);
    liste_.add_Lied(Pfad, Kategorie);
    liste_.add_MP3_Größe(Größe);
}

bool Auszugsdatenbank::anlegen() {
    if (!sitzung_.Datenbank_erstellen(false, true)) {
        liste_.entladen();
        return false;
    }
    liste_.activate(Quelle_Datenbank, false);
    return true;
}

bool Auszugsdatenbank::anlegen(const std::vector<Long>& Nummern) {
    if (!modell_.Datenbank_offen || Nummern.empty()) return false;
    beginnen();
    for (const Long nr : Nummern) {
        const Lied& lied = modell_.Lieder[nr];
        aufnehmen(lied.Artist + " - " + lied.Titel, modell_.Lied_Pfad(nr), lied.Kategorie, lied.Größe);
    }
    return anlegen();
}

}  // namespace tonkartei
