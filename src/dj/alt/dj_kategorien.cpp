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
    return Spalte({Wahl.anordnung(), KatSchema_Text, Knoten(KatSchema).zeichen(14).zeilen(4).dehnen(1)});
}

void DJ_Kategorien::beim_Laden() {
    Wahl.beschriften();
    std::vector<Text> namen;
    for (int n = 1; n <= modell_.Anz_Kat_Schemas; ++n) namen.push_back(modell_.Schemas[n].Name);
    KatSchema.setzen(std::move(namen));
    Kat[1].wert(true);
}

}  // namespace tonkartei
