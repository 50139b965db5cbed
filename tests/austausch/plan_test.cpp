// The sums behind the windows: which song is compared with which, what a backup comes to, where a song goes.
#include <gtest/gtest.h>

#include <random>

#include "austausch/aufloesung/ablageplan.hpp"
#include "austausch/liedvergleich.hpp"
#include "austausch/sicherung/portionsplan.hpp"

namespace tonkartei {
namespace {

// The search as it is meant: through the own songs in their order, the first that is alike at all.
Liedvergleich::Treffer einfach_gesucht(const Bestand& eigene, const std::vector<Zeitpunkt>& daten, const Lied& lied,
                                       const Zeitpunkt& datum) {
    for (Long nr = 1; nr <= eigene.Anzahl_Lieder; ++nr)
        if (const int grad = Lieder_vergleichen(lied, eigene.Lieder[nr], datum, daten[static_cast<std::size_t>(nr - 1)]))
            return {nr, grad};
    return {eigene.Anzahl_Lieder + 1, 0};
}

TEST(Liedvergleich, findet_was_die_doppelte_Schleife_findet) {
    std::mt19937 zufall(7);
    const auto bis = [&](int n) { return static_cast<int>(zufall() % static_cast<unsigned>(n)); };
    const auto lied = [&] {
        Lied neu;
        neu.Artist = std::string(1, static_cast<char>((bis(2) ? 'a' : 'A') + bis(2)));
        neu.Titel = std::string(static_cast<std::size_t>(bis(3)), 'a');
        neu.Größe = bis(3);
        neu.Zeit = bis(2) ? 0.5 : 0;  // plays no part
        return neu;
    };
    const auto datum = [&] { return Zeitpunkt{2001, 9, 9, 12, 0, bis(2)}; };
    int grade[3] = {};
    for (int runde = 0; runde < 300; ++runde) {
        Bestand eigene;
        std::vector<Zeitpunkt> daten;
        for (eigene.Anzahl_Lieder = 0; eigene.Anzahl_Lieder < runde % 9; ++eigene.Anzahl_Lieder) {
            eigene.Lieder[eigene.Anzahl_Lieder + 1] = lied();
            daten.push_back(datum());
        }
        const Liedvergleich vergleich(eigene, daten);
        for (int i = 0; i < 20; ++i) {
            const Lied fremdes = lied();
            const Zeitpunkt wann = datum();
            const auto treffer = vergleich.vergleichen(fremdes.Artist, fremdes.Titel, fremdes.Größe, wann);
            const auto soll = einfach_gesucht(eigene, daten, fremdes, wann);
            ASSERT_EQ(std::pair(treffer.Nr, treffer.Grad), std::pair(soll.Nr, soll.Grad)) << runde;
            ++grade[soll.Grad];
        }
    }
    for (const int anzahl : grade) EXPECT_GT(anzahl, 100);
}

TEST(Portionsplan, rechnet_zur_geraden_Zahl_und_schätzt_zu_klein) {
    struct Fall {
        std::vector<Long> KByte;
        double P;
        Long Minimale_Portion, Gesamtgröße, geschätzt;
        std::size_t wirklich;
    };
    const Fall fälle[] = {
        {{}, 1, 1, 0, 0, 0},
        {{1}, 1, 1, 0, 0, 1},
        {{512}, 650, 2, 0, 0, 1},
        {{1536}, 650, 2, 2, 1, 1},
        {{512 + 1024 * 2}, 3, 4, 2, 1, 1},
        {{716800, 1}, 701, 701, 700, 1, 1},
        {{1024, 1024}, 2, 2, 2, 1, 1},
        {{1024, 1025}, 2, 2, 2, 1, 2},
        {{409600, 409600, 409600}, 650, 401, 1200, 2, 3},
        {{-5, 3}, 1, 1, 0, 0, 1},  // a damaged record
    };
    for (const Fall& fall : fälle) {
        Bestand bestand;
        for (const Long größe : fall.KByte) bestand.Lieder[++bestand.Anzahl_Lieder].Größe = größe;
        const Portionsplan plan(bestand);
        SCOPED_TRACE(testing::PrintToString(fall.KByte));
        EXPECT_EQ(plan.Minimale_Portion, fall.Minimale_Portion);
        EXPECT_EQ(plan.Gesamtgröße(), fall.Gesamtgröße);
        EXPECT_EQ(plan.Anzahl_Portionen(fall.P), fall.geschätzt);
        EXPECT_EQ(plan.Portionen(fall.P).size(), fall.wirklich);
    }
}

TEST(Ablageplan, jede_Wahl_bleibt_unter_dem_Ziel) {
    const auto K = Baustein::Kategorie, A = Baustein::Artist, T = Baustein::Titel, X = Baustein::keiner;
    struct Fall {
        std::array<Baustein, 3> Ebene, DName;
        Text Artist, Titel, Pfad;
    };
    const Fall fälle[] = {
        {{K, A, X}, {T, X, X}, "Can", "Vitamin C", "Rock_Pop|Can|Vitamin C.mp3"},
        {{K, A, T}, {A, T, K}, "Can", "Halleluhwah", "Rock_Pop|Can|Halleluhwah|Can - Halleluhwah - Rock_Pop.mp3"},
        {{X, X, X}, {A, T, X}, "AC/DC", "C:\\?*", "AC_DC - C___*.mp3"},
        {{A, T, X}, {X, X, X}, "..", ".", "__|_|.mp3"},
        {{A, T, X}, {T, A, X}, "", "...", "___|... - .mp3"},
        {{A, X, X}, {A, X, X}, "../../etc", "x", ".._.._etc|.._.._etc.mp3"},
        {{A, X, X}, {T, X, X}, "", "", ".mp3"},
    };
    Bestand bestand;
    bestand.Anzahl_Kategorien = 2;
    bestand.Kategorien[2] = "Rock/Pop";
    for (const Fall& fall : fälle) {
        Lied lied;
        lied.Kategorie = 2;
        lied.Artist = fall.Artist;
        lied.Titel = fall.Titel;
        const Ablageplan plan{fall.Ebene, fall.DName};
        Text ist;
        for (const Text& ordner : plan.Ordner(bestand, lied)) ist += ordner + "|";
        EXPECT_EQ(ist + plan.Dateiname(bestand, lied), fall.Pfad);
    }
    Lied ohne;
    ohne.Kategorie = 255;
    EXPECT_TRUE(Ablageplan{}.Ordner(bestand, ohne).empty());
}

}  // namespace
}  // namespace tonkartei
