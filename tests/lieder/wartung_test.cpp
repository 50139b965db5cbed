#include "lieder/wartung/wartung.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace tonkartei {
namespace {

using Nummern = std::vector<long long>;
using Zeiten = std::vector<std::optional<Zeitpunkt>>;

bool Zwillinge(const Modell& m, Zwillingsart art, const Zeiten& zeiten, Long i, Long j) {
    const Lied& a = m.Lieder[i];
    const Lied& b = m.Lieder[j];
    const auto& zeit_a = zeiten[static_cast<std::size_t>(i - 1)];
    const auto& zeit_b = zeiten[static_cast<std::size_t>(j - 1)];
    switch (art) {
        case Zwillingsart::Namen: return a.Artist + a.Titel == b.Artist + b.Titel;
        case Zwillingsart::Artisten: return a.Artist == b.Artist;
        case Zwillingsart::Titel: return a.Titel == b.Titel;
        case Zwillingsart::Datum_Größe: return a.Größe == b.Größe && zeit_a && zeit_b && *zeit_a == *zeit_b;
    }
    return false;
}

// Each song against each other one: slow, and the measure of what the quick way must find.
Nummern doppelte_im_Vergleich(const Modell& m, Zwillingsart art, const Zeiten& zeiten) {
    Nummern nummern;
    const auto aufnehmen = [&nummern](Long nr) {
        if (std::find(nummern.begin(), nummern.end(), nr) == nummern.end()) nummern.push_back(nr);
    };
    for (Long i = 1; i <= m.Anzahl_Lieder; ++i)
        for (Long j = 1; j <= m.Anzahl_Lieder; ++j) {
            if (i == j || !Zwillinge(m, art, zeiten, i, j)) continue;
            aufnehmen(i);
            aufnehmen(j);
        }
    return nummern;
}

TEST(Zwillinge, wie_der_Vergleich_jedes_mit_jedem) {
    std::uint32_t zufall = 7;
    const auto würfeln = [&zufall](std::uint32_t n) {
        zufall = zufall * 1664525U + 1013904223U;
        return static_cast<int>((zufall >> 16) % n);
    };
    for (int runde = 0; runde < 20; ++runde) {
        Modell m;
        m.Anzahl_Lieder = 60;
        Zeiten zeiten;
        for (Long nr = 1; nr <= m.Anzahl_Lieder; ++nr) {
            // Few letters, so that names also meet across their border.
            m.Lieder[nr].Artist = Text(static_cast<std::size_t>(würfeln(4)), 'a') + (würfeln(2) == 0 ? "A" : "");
            m.Lieder[nr].Titel = Text(static_cast<std::size_t>(würfeln(20)), 'a');
            m.Lieder[nr].Größe = würfeln(5);
            if (würfeln(4) == 0)
                zeiten.emplace_back();
            else
                zeiten.push_back(Zeitpunkt{2026, 3, 1, 0, würfeln(2), würfeln(4)});
        }
        for (const auto art :
             {Zwillingsart::Namen, Zwillingsart::Artisten, Zwillingsart::Titel, Zwillingsart::Datum_Größe}) {
            Long gehört = 0;
            const Nummern gefunden = doppelte_suchen(m, art, zeiten, [&](Long nr) { gehört += nr; });
            EXPECT_EQ(gefunden, doppelte_im_Vergleich(m, art, zeiten));
            EXPECT_FALSE(gefunden.empty());
            EXPECT_EQ(gehört, 60 * 61 / 2);
        }
    }
}

TEST(Datum, aus_Text) {
    const struct {
        Text text;
        int jahr, monat, tag;  // jahr 0: none
    } fälle[] = {{"5.3.2026", 2026, 3, 5}, {" 05.03.26 ", 2026, 3, 5},
                 {"1.1.30", 1930, 1, 1},   {"29.2.2024", 2024, 2, 29},
                 {"5.3.", 2021, 3, 5},     {"5.3", 2021, 3, 5},
                 {"29.2.2023", 0, 0, 0},   {"0.1.2026", 0, 0, 0},
                 {"1.13.2026", 0, 0, 0},   {"5", 0, 0, 0},
                 {"5.3.2026.", 0, 0, 0},   {"5,3,2026", 0, 0, 0},
                 {"heute", 0, 0, 0},       {"1.1.99999", 0, 0, 0},
                 {"00005.3.26", 0, 0, 0},  {"", 0, 0, 0}};
    for (const auto& fall : fälle) {
        const auto zeit = Datum_aus_Text(fall.text, 2021);
        ASSERT_EQ(zeit.has_value(), fall.jahr != 0) << fall.text;
        if (zeit) {
            EXPECT_EQ(*zeit, (Zeitpunkt{fall.jahr, fall.monat, fall.tag, 0, 0, 0})) << fall.text;
        }
    }
}

TEST(Mittelwert, Text) {
    const struct {
        double wert;
        const char* text;
    } fälle[] = {{2.5, "2,5"}, {3, "3,"}, {0, ","}, {0.25, ",3"}, {0.04, ","}, {12.96, "13,"}, {-1.5, "-1,5"}, {-0.04, ","}};
    for (const auto& fall : fälle) EXPECT_EQ(Mittelwert_Text(fall.wert), fall.text);
}

}  // namespace
}  // namespace tonkartei
