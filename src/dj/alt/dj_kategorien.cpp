#include "dj/alt/dj_kategorien.hpp"

#include "dj/alt/farben.hpp"

namespace tonkartei {

DJ_Kategorien::DJ_Kategorien(Ansicht& ansicht, const Modell& modell)
    : Fenster(ansicht, "DJ_Kategorien", "Kategorien"), Wahl(modell, Kat), modell_(modell) {
    hintergrund = Pultgrund;
    for (Kasten& kasten : Kat) kasten.tooltip("Die Kategorien, die in der Liste angezeigt werden.");
    KatSchema.tooltip("wählt die Kategorien eines Schemas");
    KatSchema.Klick.verbinden([this] { Wahl.Schema_anwenden(KatSchema.gewählt() + 1); });
}

Knoten DJ_Kategorien::anordnung() {
    std::vector<Knoten> spalten;
    for (int spalte = 0; spalte < 2; ++spalte) {
        std::vector<Knoten> kästen;
        for (int k = 10 * spalte + 1; k <= 10 * spalte + 10; ++k) kästen.emplace_back(Kat[k]);
        kästen.push_back(Feder(0, 1));
        spalten.push_back(Spalte(std::move(kästen)).lücke(2 * Twips_je_Pixel).dehnen(1, 1));
    }
    return Spalte(
        {Zeile(std::move(spalten)).dehnen(1, 1), KatSchema_Text, Knoten(KatSchema).zeichen(14).zeilen(4).dehnen(1)});
}

void DJ_Kategorien::beim_Laden() {
    Wahl.beschriften();
    std::vector<Text> namen;
    for (int n = 1; n <= modell_.Anz_Kat_Schemas; ++n) namen.push_back(modell_.Schemas[n].Name);
    KatSchema.setzen(std::move(namen));
    Kat[1].wert(true);
}

}  // namespace tonkartei
