#include "statistik/kategorien_bereich.hpp"

#include <algorithm>
#include <array>

#include "datenbank/modell.hpp"
#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/fenster.hpp"

namespace tonkartei {
namespace {

constexpr Farbe Balkenfarbe = RGB(0, 0, 128);
constexpr int Vorlage = 0;                        // index of what the rows are made after
constexpr int Namensbreite = 24, Zahlbreite = 6;  // characters
constexpr int Lücke = 8 * Twips_je_Pixel;

}  // namespace

Kategorien_Bereich::Reihe::Reihe(Fenster& fenster, Rahmen& rahmen, int nummer)
    : Name(fenster, "Kategorie_Name", "", nummer),
      Anzahl(fenster, "Kategorie_Anzahl", "", nummer),
      Balken(fenster, "Kategorie_Balken", nummer) {
    Name.wie_Daten = true;
    Anzahl.ausrichtung = Schriftfeld::Ausrichtung::rechts;
    Balken.Diagramm = true;
    Balken.farbe(Balkenfarbe);
    Balken.hintergrund(Balkenfarbe);
    for (Element* element : {static_cast<Element*>(&Name), static_cast<Element*>(&Anzahl), static_cast<Element*>(&Balken)}) {
        element->frei = true;
        element->rahmen(&rahmen);
    }
}

Kategorien_Bereich::Kategorien_Bereich(Fenster& fenster, const Modell& modell)
    : Zeilenrahmen(fenster, "Kategorien_Rahmen"),
      Kategorie_Name(fenster, "Kategorie_Name", "", Vorlage),
      Kategorie_Anzahl(fenster, "Kategorie_Anzahl", "", Vorlage),
      Kategorie_Balken(fenster, "Kategorie_Balken", Vorlage),
      fenster_(fenster),
      modell_(modell) {
    for (Element* element : std::initializer_list<Element*>{&Kategorie_Name, &Kategorie_Anzahl, &Kategorie_Balken}) {
        element->frei = true;
        element->rahmen(&Zeilenrahmen);
        element->sichtbar(false);
    }
}

void Kategorien_Bereich::leeren() { reihen_.clear(); }

// The first row is the total and has no bar of its own.
void Kategorien_Bereich::zeigen() {
    std::array<Long, 256> lieder{};  // by whatever category a record can hold
    for (Long nr = 1; nr <= modell_.Anzahl_Lieder; ++nr) ++lieder.at(modell_.Lieder[nr].Kategorie);
    const int anzahl = modell_.Anzahl_Kategorien;
    const Long maximum =
        anzahl < 2 ? modell_.Anzahl_Lieder : *std::max_element(lieder.begin() + 1, lieder.begin() + anzahl + 1);
    for (int k = 1; k <= anzahl; ++k) {
        auto& reihe = reihen_.emplace_back(std::make_unique<Reihe>(fenster_, Zeilenrahmen, k));
        const Long zahl = k == 1 ? modell_.Anzahl_Lieder : lieder.at(static_cast<std::size_t>(k));
        reihe->Name.beschriftung(modell_.Kategorien[k]);
        reihe->Anzahl.beschriftung(Zahltext(zahl));
        // Without songs there is no longest bar to compare with.
        if (k > 1 && maximum > 0) reihe->Anteil = static_cast<double>(zahl) / maximum;
    }
    platzieren();
}

Knoten Kategorien_Bereich::knoten() {
    return Gruppe(Zeilenrahmen, Feder(1, 1).mindestens(9000, Kategorien_maximal * Schritt()));
}

int Kategorien_Bereich::Schritt() const {
    return fenster_.ansicht().Wunschgröße(Kategorie_Anzahl).höhe + 3 * Twips_je_Pixel;
}

void Kategorien_Bereich::platzieren() {
    const Ansicht& ansicht = fenster_.ansicht();
    const int höhe = ansicht.Wunschgröße(Kategorie_Anzahl).höhe;
    const auto Breite = [&](int zeichen) {
        return ansicht.Textbreite(Text(static_cast<std::size_t>(zeichen), 'n'), Kategorie_Name.schrift());
    };
    const Bereich name{0, 0, Breite(Namensbreite), höhe};
    const Bereich zahl{name.breite + Lücke, 0, Breite(Zahlbreite), höhe};
    const int links = zahl.links + zahl.breite + Lücke;
    const Bereich balken{links, 2 * Twips_je_Pixel, Zeilenrahmen.breite() - links, höhe - 4 * Twips_je_Pixel};
    Kategorie_Name.lage(name);
    Kategorie_Anzahl.lage(zahl);
    Kategorie_Balken.lage(balken);
    int oben = 0;
    for (auto& reihe : reihen_) {
        const auto versetzt = [&](Bereich lage) { return lage.oben += oben, lage; };
        reihe->Name.lage(versetzt(name));
        reihe->Anzahl.lage(versetzt(zahl));
        Bereich lang = versetzt(balken);
        lang.breite = gerundet(reihe->Anteil * balken.breite);
        reihe->Balken.lage(lang);
        oben += Schritt();
    }
}

}  // namespace tonkartei
