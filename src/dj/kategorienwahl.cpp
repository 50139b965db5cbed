#include "dj/kategorienwahl.hpp"

#include <utility>
#include <vector>

#include "grundlagen/waehrend.hpp"

namespace tonkartei {

Kategorienwahl::Kategorienwahl(const Modell& modell, Kästen& kästen) : modell_(modell), kästen_(kästen) {
    for (int k = 1; k <= Kategorien_maximal; ++k) {
        kästen_[k].Beschriftung_wörtlich = true;
        kästen_[k].Klick.verbinden([this, k] { Kasten_geändert(k); });
    }
}

void Kategorienwahl::beschriften() {
    for (int k = 1; k <= Kategorien_maximal; ++k) {
        const bool da = k <= modell_.Anzahl_Kategorien;
        kästen_[k].beschriftung(da ? modell_.Kategorien[k] : Text());
        kästen_[k].sichtbar(da);
    }
}

Knoten Kategorienwahl::anordnung() {
    std::vector<Knoten> spalten;
    for (int spalte = 0; spalte < 2; ++spalte) {
        std::vector<Knoten> kästen;
        for (int k = 10 * spalte + 1; k <= 10 * spalte + 10; ++k) kästen.emplace_back(kästen_[k]);
        kästen.push_back(Feder(0, 1));
        spalten.push_back(Spalte(std::move(kästen)).lücke(2 * Twips_je_Pixel).dehnen(1, 1));
    }
    return Zeile(std::move(spalten)).dehnen(1, 1);
}

bool Kategorienwahl::zeigt(int Kategorie) const {
    return Kategorie >= 1 && Kategorie <= Kategorien_maximal && kästen_[Kategorie].wert();
}

void Kategorienwahl::Kasten_geändert(int k) {
    if (Kategorie_Sperre_) return;
    {
        const Während gesperrt(Kategorie_Sperre_);
        if (k == 1)
            // Taking "all" away leaves the same list, with single boxes to clear.
            for (int anderer = 2; anderer <= Kategorien_maximal; ++anderer) kästen_[anderer].wert(!kästen_[1].wert());
        else
            kästen_[1].wert(false);
    }
    geändert();
}

void Kategorienwahl::Schema_anwenden(int n) {
    if (n < 1 || n > modell_.Anz_Kat_Schemas) return;
    {
        const Während gesperrt(Kategorie_Sperre_);
        const Schema& schema = modell_.Schemas[n];
        for (int k = 1; k <= modell_.Anzahl_Kategorien; ++k) kästen_[k].wert(false);
        for (int i = 1; i <= schema.Anzahl; ++i)
            if (const int k = schema.Kategorien[i]; k >= 1 && k <= Kategorien_maximal) kästen_[k].wert(true);
    }
    geändert();
}

}  // namespace tonkartei
