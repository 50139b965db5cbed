#include "lieder/hinzufuegen/db_add_start_kategorien.hpp"

#include "oberflaeche/ansicht.hpp"

namespace tonkartei {

DB_add_start_Kategorien::DB_add_start_Kategorien(Ansicht& ansicht)
    : Wartedialog(ansicht, "DB_add_start_Kategorien", "Kategorien hinzufügen"), kästen_([this] {
          std::array<std::unique_ptr<Kasten>, Kategorien_maximal> kästen;
          int k = 0;
          for (auto& kasten : kästen) kasten = std::make_unique<Kasten>(*this, "Kategorie", "", ++k);
          return kästen;
      }()) {
    for (int k = 1; k <= Kategorien_maximal; ++k) {
        Kasten& kasten = Kategorie(k);
        kasten.Beschriftung_wörtlich = true;
        kasten.tooltip(k == 1 ? "Alle Lieder der anderen Datenbank hinzufügen."
                              : "Die Lieder dieser Kategorie der anderen Datenbank hinzufügen.");
        kasten.Klick.verbinden([this, k] { Kasten_geändert(k); });
    }
    Ok.tooltip("Die Lieder der gewählten Kategorien suchen.");
    Abbruch.tooltip("Nichts hinzufügen.");
    Vorgabeknopf = &Ok;
    Abbruchknopf = &Abbruch;
    Ok.Klick.verbinden([this] {
        Kategorieauswahl gewählt{};
        for (int k = 1; k <= Kategorien_maximal; ++k) gewählt[static_cast<std::size_t>(k - 1)] = Kategorie(k).wert();
        antworten(gewählt);
    });
    Abbruch.Klick.verbinden([this] { entladen(); });
}

Kasten& DB_add_start_Kategorien::Kategorie(int k) const {
    if (k < 1 || k > Kategorien_maximal) throw Laufzeitfehler(Fehler_Index);
    return *kästen_[static_cast<std::size_t>(k - 1)];
}

std::optional<Kategorieauswahl> DB_add_start_Kategorien::wählen(const std::vector<Text>& Namen) {
    const auto füllen = [&] {
        for (int k = 1; k <= Kategorien_maximal; ++k) {
            const auto stelle = static_cast<std::size_t>(k - 1);
            const bool da = stelle < Namen.size();
            Kategorie(k).beschriftung(da ? Namen[stelle] : "");
            Kategorie(k).sichtbar(da);
        }
        Kategorie(1).wert(true);
        neu_anordnen();
        const Größe knapp = Mindestgröße();
        größe(knapp.breite, knapp.höhe);
    };
    return fragen(füllen, Ok);
}

Knoten DB_add_start_Kategorien::anordnung() {
    std::vector<Knoten> kästen;
    for (const auto& kasten : kästen_) kästen.push_back(Knoten(*kasten).zeichen(24).dehnen(1));
    return Spalte({Gitter(2, std::move(kästen)), Feder(0, 1),
                   Zeile({Feder(), Knoten(Ok).zeichen(12), Knoten(Abbruch).zeichen(12)})})
        .rand(12 * Twips_je_Pixel);
}

// Box 1 excludes the others.
void DB_add_start_Kategorien::Kasten_geändert(int k) {
    if (gleicht_an_ || !Kategorie(k).wert()) return;
    gleicht_an_ = true;
    if (k == 1)
        for (int andere = 2; andere <= Kategorien_maximal; ++andere) Kategorie(andere).wert(false);
    else
        Kategorie(1).wert(false);
    gleicht_an_ = false;
}

}  // namespace tonkartei
