#include "kategorien/kategoriezuordnung.hpp"

#include <algorithm>

#include "grundlagen/waehrend.hpp"

namespace tonkartei {

Kategoriezuordnung::Kategoriezuordnung(const Modell& modell, Listenfeld& Liste, Auswahlfeld& neue_Kategorie)
    : modell_(modell), liste_(Liste), ziele_(neue_Kategorie) {
    liste_.Klick.verbinden([this] { Quelle_gewählt(); });
    ziele_.Klick.verbinden([this] { Ziel_gewählt(); });
}

void Kategoriezuordnung::Quelle_setzen(std::vector<Text> kategorien) {
    quelle_ = std::move(kategorien);
    nach_Namen_zuordnen();
}

void Kategoriezuordnung::nach_Namen_zuordnen() {
    for (int k = 1; k <= Kategorien_maximal; ++k) zuordnung_[k] = 0;
    for (std::size_t k = 0; k < quelle_.size(); ++k) zuordnung_[static_cast<long long>(k) + 1] = gleichnamige(quelle_[k]);
}

Byte Kategoriezuordnung::Ziel(Byte Quelle) const {
    return Quelle >= 1 && Quelle <= quelle_.size() ? zuordnung_[Quelle] : Byte{0};
}

void Kategoriezuordnung::zeigen() {
    std::vector<Text> ziele{"bei jedem Lied fragen"};
    for (int k = 1; k <= modell_.Anzahl_Kategorien; ++k) ziele.push_back(modell_.Kategorien[k]);
    ziele_.setzen(std::move(ziele));
    std::vector<Text> zeilen;
    for (int k = 1; k <= static_cast<int>(quelle_.size()); ++k) zeilen.push_back(Zeile_von(k));
    liste_.setzen(std::move(zeilen));
}

void Kategoriezuordnung::vor_dem_Bearbeiten() {
    alte_Namen_.clear();
    for (int k = 1; k <= modell_.Anzahl_Kategorien; ++k) alte_Namen_.push_back(modell_.Kategorien[k]);
}

void Kategoriezuordnung::nach_dem_Bearbeiten() {
    const int gewählt = liste_.gewählt();
    for (std::size_t k = 0; k < quelle_.size(); ++k) {
        Byte& ziel = zuordnung_[static_cast<long long>(k) + 1];
        const bool gab_es = std::find(alte_Namen_.begin(), alte_Namen_.end(), quelle_[k]) != alte_Namen_.end();
        if (ziel == 0 && !gab_es) ziel = gleichnamige(quelle_[k]);
    }
    zeigen();
    if (gewählt >= 0) liste_.wähle(gewählt);
}

void Kategoriezuordnung::umnummerieren(const std::function<Byte(Byte)>& neue) {
    for (int k = 1; k <= Kategorien_maximal; ++k) {
        Byte& ziel = zuordnung_[k];
        if (ziel != 0) ziel = neue(ziel);
    }
}

Byte Kategoriezuordnung::gleichnamige(const Text& name) const {
    for (int k = 1; k <= modell_.Anzahl_Kategorien; ++k)
        if (modell_.Kategorien[k] == name) return als_Byte(k);
    return 0;
}

Text Kategoriezuordnung::Zeile_von(int quelle) const {
    return quelle_[static_cast<std::size_t>(quelle - 1)] + " --->" + ziele_.zeile(zuordnung_[quelle]);
}

void Kategoriezuordnung::Quelle_gewählt() {
    if (liste_.gewählt() < 0) return;
    const Während füllt(füllt_);
    ziele_.wähle(zuordnung_[liste_.gewählt() + 1]);
}

void Kategoriezuordnung::Ziel_gewählt() {
    const int quelle = liste_.gewählt() + 1;
    if (füllt_ || quelle < 1) return;
    zuordnung_[quelle] = als_Byte(ziele_.gewählt());
    liste_.zeile(quelle - 1, Zeile_von(quelle));
}

}  // namespace tonkartei
