#include "lieder/hinzufuegen/dbadd_kategorien.hpp"

#include <algorithm>

#include "kategorien/kategorie_bearbeiten.hpp"
#include "oberflaeche/ansicht.hpp"

namespace tonkartei {

DBadd_Kategorien::DBadd_Kategorien(Ansicht& ansicht, const Modell& modell, Kategorie_bearbeiten& editor)
    : Fenster(ansicht, "DBadd_Kategorien", "Datenbank hinzufügen"), modell_(modell), editor_(editor) {
    Liste.tooltip("Welche Kategorie die Lieder in dieser Datenbank bekommen.");
    neue_Kategorie.tooltip("Die neue Kategorie der gewählten Zeile.");
    Kategorie_Edit.tooltip("Die Kategorien dieser Datenbank ändern.");
    Ok.tooltip("Die Lieder mit diesen Kategorien eintragen.");
    Vorgabeknopf = &Ok;
    Liste.Klick.verbinden([this] { Quelle_gewählt(); });
    neue_Kategorie.Klick.verbinden([this] { Ziel_gewählt(); });
    Kategorie_Edit.Klick.verbinden([this] { bearbeiten(); });
    Ok.Klick.verbinden([this] { entladen(); });
    editor_.umnummeriert.verbinden([this](const std::function<Byte(Byte)>& neue) { umnummerieren(neue); });
    editor_.zurück[Kategorie_bearbeiten::von_DBadd_Kategorien] = [this] {
        nach_dem_Bearbeiten();
        return true;
    };
}

void DBadd_Kategorien::bearbeiten() {
    alte_Namen_.clear();
    for (int k = 1; k <= modell_.Anzahl_Kategorien; ++k) alte_Namen_.push_back(modell_.Kategorien[k]);
    aktiv(false);
    editor_.öffnen(Kategorie_bearbeiten::von_DBadd_Kategorien);
}

void DBadd_Kategorien::eigene_als_Quelle() {
    Quell_Kategorien.clear();
    for (int k = 1; k <= modell_.Anzahl_Kategorien; ++k) Quell_Kategorien.push_back(modell_.Kategorien[k]);
}

std::vector<Byte> DBadd_Kategorien::Init(Long A, const std::vector<Lied_Fund>& Lieder) {
    if (A < 1) return {};
    nach_Namen_zuordnen();
    fertig_ = false;
    laden();
    Ziele_füllen();
    Zeilen_füllen();
    if (Liste.Anzahl() > 0) Liste.wähle(0);
    zeigen();
    ansicht().fokus(Liste);
    ansicht().warten_bis(*this, [this] { return fertig_; });
    return je_Lied(A, Lieder);
}

std::vector<Byte> DBadd_Kategorien::ohne_Rückfrage(Long A, const std::vector<Lied_Fund>& Lieder) {
    if (fertig_) nach_Namen_zuordnen();
    return je_Lied(A, Lieder);
}

void DBadd_Kategorien::nach_Namen_zuordnen() {
    for (int k = 1; k <= Kategorien_maximal; ++k) Kategorie_Zuordnung_[k] = 0;
    for (std::size_t k = 0; k < Quell_Kategorien.size(); ++k)
        Kategorie_Zuordnung_[static_cast<long long>(k) + 1] = gleichnamige(Quell_Kategorien[k]);
}

std::vector<Byte> DBadd_Kategorien::je_Lied(Long A, const std::vector<Lied_Fund>& Lieder) const {
    std::vector<Byte> kategorien;
    for (std::size_t i = 0; i < static_cast<std::size_t>(A); ++i) {
        const Byte quelle = Lieder.at(i).Quell_Kategorie;
        const bool bekannt = quelle >= 1 && quelle <= Quell_Kategorien.size();
        kategorien.push_back(bekannt ? Kategorie_Zuordnung_[quelle] : Byte{0});
    }
    return kategorien;
}

void DBadd_Kategorien::umnummerieren(const std::function<Byte(Byte)>& neue) {
    if (fertig_) return;
    for (int k = 1; k <= Kategorien_maximal; ++k) {
        Byte& ziel = Kategorie_Zuordnung_[k];
        if (ziel != 0) ziel = neue(ziel);
    }
}

// What has no target takes a category of its name that has come up meanwhile.
void DBadd_Kategorien::nach_dem_Bearbeiten() {
    if (fertig_) return;  // closed from outside meanwhile
    const int gewählt = Liste.gewählt();
    for (std::size_t k = 0; k < Quell_Kategorien.size(); ++k) {
        Byte& ziel = Kategorie_Zuordnung_[static_cast<long long>(k) + 1];
        const bool gab_es = std::find(alte_Namen_.begin(), alte_Namen_.end(), Quell_Kategorien[k]) != alte_Namen_.end();
        if (ziel == 0 && !gab_es) ziel = gleichnamige(Quell_Kategorien[k]);
    }
    Ziele_füllen();
    Zeilen_füllen();
    if (gewählt >= 0) Liste.wähle(gewählt);
    aktiv(true);
    nach_vorn();
}

Knoten DBadd_Kategorien::anordnung() {
    return Spalte({Liste_Text, Knoten(Liste).zeichen(48).zeilen(12).dehnen(1, 1),
                   Zeile({neue_Kategorie_Text, Knoten(neue_Kategorie).zeichen(24).dehnen(1)}),
                   Zeile({Kategorie_Edit, Feder(), Knoten(Ok).zeichen(12)})})
        .rand(12 * Twips_je_Pixel);
}

void DBadd_Kategorien::beim_Entladen() { fertig_ = true; }

Byte DBadd_Kategorien::gleichnamige(const Text& name) const {
    for (int k = 1; k <= modell_.Anzahl_Kategorien; ++k)
        if (modell_.Kategorien[k] == name) return als_Byte(k);
    return 0;
}

void DBadd_Kategorien::Ziele_füllen() {
    std::vector<Text> ziele{"bei jedem Lied fragen"};
    for (int k = 1; k <= modell_.Anzahl_Kategorien; ++k) ziele.push_back(modell_.Kategorien[k]);
    neue_Kategorie.setzen(std::move(ziele));
}

void DBadd_Kategorien::Zeilen_füllen() {
    std::vector<Text> zeilen;
    for (int k = 1; k <= static_cast<int>(Quell_Kategorien.size()); ++k) zeilen.push_back(Zeile_von(k));
    Liste.setzen(std::move(zeilen));
}

Text DBadd_Kategorien::Zeile_von(int quelle) const {
    return Quell_Kategorien[static_cast<std::size_t>(quelle - 1)] + " --->" +
           neue_Kategorie.zeile(Kategorie_Zuordnung_[quelle]);
}

void DBadd_Kategorien::Quelle_gewählt() {
    if (Liste.gewählt() < 0) return;
    füllt_ = true;
    neue_Kategorie.wähle(Kategorie_Zuordnung_[Liste.gewählt() + 1]);
    füllt_ = false;
}

void DBadd_Kategorien::Ziel_gewählt() {
    const int quelle = Liste.gewählt() + 1;
    if (füllt_ || quelle < 1) return;
    Kategorie_Zuordnung_[quelle] = als_Byte(neue_Kategorie.gewählt());
    Liste.zeile(quelle - 1, Zeile_von(quelle));
}

}  // namespace tonkartei
