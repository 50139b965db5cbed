#include "lieder/hinzufuegen/dbadd_kategorien.hpp"

#include "kategorien/kategorie_bearbeiten.hpp"

namespace tonkartei {

DBadd_Kategorien::DBadd_Kategorien(Ansicht& ansicht, const Modell& modell, Kategorie_bearbeiten& editor)
    : Wartedialog(ansicht, "DBadd_Kategorien", "Datenbank hinzufügen"), modell_(modell), editor_(editor) {
    Liste.tooltip("Welche Kategorie die Lieder in dieser Datenbank bekommen.");
    neue_Kategorie.tooltip("Die neue Kategorie der gewählten Zeile.");
    Kategorie_Edit.tooltip("Die Kategorien dieser Datenbank ändern.");
    Ok.tooltip("Die Lieder mit diesen Kategorien eintragen.");
    Vorgabeknopf = &Ok;
    Kategorie_Edit.Klick.verbinden([this] { bearbeiten(); });
    Ok.Klick.verbinden([this] { entladen(); });
    editor_.umnummeriert.verbinden([this](const std::function<Byte(Byte)>& neue) {
        if (wartet()) zuordnung_.umnummerieren(neue);
    });
    editor_.zurück[Kategorie_bearbeiten::von_DBadd_Kategorien] = [this] {
        nach_dem_Bearbeiten();
        return true;
    };
}

void DBadd_Kategorien::bearbeiten() {
    zuordnung_.vor_dem_Bearbeiten();
    aktiv(false);
    editor_.öffnen(Kategorie_bearbeiten::von_DBadd_Kategorien);
}

void DBadd_Kategorien::nach_dem_Bearbeiten() {
    if (!wartet()) return;  // closed from outside meanwhile
    zuordnung_.nach_dem_Bearbeiten();
    aktiv(true);
    nach_vorn();
}

void DBadd_Kategorien::eigene_als_Quelle() {
    std::vector<Text> kategorien;
    for (int k = 1; k <= modell_.Anzahl_Kategorien; ++k) kategorien.push_back(modell_.Kategorien[k]);
    Quelle_setzen(std::move(kategorien));
}

std::vector<Byte> DBadd_Kategorien::Init(Long A, const std::vector<Lied_Fund>& Lieder) {
    if (A < 1) return {};
    zuordnung_.nach_Namen_zuordnen();
    fragen(
        [this] {
            zuordnung_.zeigen();
            if (Liste.Anzahl() > 0) Liste.wähle(0);
        },
        Liste);
    return je_Lied(A, Lieder);
}

std::vector<Byte> DBadd_Kategorien::ohne_Rückfrage(Long A, const std::vector<Lied_Fund>& Lieder) {
    if (!wartet()) zuordnung_.nach_Namen_zuordnen();
    return je_Lied(A, Lieder);
}

std::vector<Byte> DBadd_Kategorien::je_Lied(Long A, const std::vector<Lied_Fund>& Lieder) const {
    std::vector<Byte> kategorien;
    for (std::size_t i = 0; i < static_cast<std::size_t>(A); ++i)
        kategorien.push_back(zuordnung_.Ziel(Lieder.at(i).Quell_Kategorie));
    return kategorien;
}

Knoten DBadd_Kategorien::anordnung() {
    return Spalte({Liste_Text, Knoten(Liste).zeichen(48).zeilen(12).dehnen(1, 1),
                   Zeile({neue_Kategorie_Text, Knoten(neue_Kategorie).zeichen(24).dehnen(1)}),
                   Zeile({Kategorie_Edit, Feder(), Knoten(Ok).zeichen(12)})})
        .rand(12 * Twips_je_Pixel);
}

}  // namespace tonkartei
