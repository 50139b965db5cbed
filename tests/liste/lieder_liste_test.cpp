#include "liste/lieder_liste.hpp"

#include <gtest/gtest.h>

namespace tonkartei {
namespace {

using Nummern = std::vector<long long>;

Modell mit_Liedern(const std::vector<std::pair<Text, Text>>& artist_titel) {
    Modell modell;
    modell.Anzahl_Kategorien = 3;
    for (const auto& [artist, titel] : artist_titel) {
        Lied& lied = modell.Lieder[++modell.Anzahl_Lieder];
        lied.Artist = artist;
        lied.Titel = titel;
        lied.Kategorie = 2;
    }
    return modell;
}

Nummern alle(const Modell& modell, Sortierung sortierung, const Text& suche = {}) {
    return Liederordnung().gefilterte_Lieder(modell, sortierung, suche, [](int k) { return k == 1; });
}

TEST(Lieder_Liste, Reihenfolge) {
    struct Fall {
        const char* was;
        std::vector<std::pair<Text, Text>> lieder;
        Sortierung sortierung;
        Nummern nummern;
    };
    const Fall fälle[] = {
        {"case does not count", {{"beck", "x"}, {"Abba", "x"}, {"ABBA", "a"}}, Sortierung::Artist, {3, 2, 1}},
        {"umlauts stand with their letters",
         {{"Azymuth", ""}, {"Ärzte", ""}, {"Arzt", ""}, {"Zappa", ""}, {"Öhm", ""}, {"Ohr", ""}},
         Sortierung::Artist,
         {3, 2, 1, 5, 6, 4}},
        {"ß stands with ss",
         {{"Strasz", ""}, {"Straße", ""}, {"Strassa", ""}, {"Strat", ""}},
         Sortierung::Artist,
         {3, 2, 1, 4}},
        {"no artist goes to the top", {{"Abba", "a"}, {"", "Z"}, {"!!!", "a"}, {"", "b"}}, Sortierung::Artist, {4, 2, 3, 1}},
        {"alike: by number", {{"Á", "x"}, {"a", "X"}, {"A", "x"}, {"ä", "x"}}, Sortierung::Artist, {1, 2, 3, 4}},
        {"by title, then artist", {{"Z", "B"}, {"A", "B"}, {"X", "A"}}, Sortierung::Titel, {3, 2, 1}},
        {"the fields are joined plainly", {{"ab", "z"}, {"a", "c"}, {"a", "ba"}}, Sortierung::Artist, {3, 1, 2}},
    };
    for (const Fall& fall : fälle) EXPECT_EQ(alle(mit_Liedern(fall.lieder), fall.sortierung), fall.nummern) << fall.was;
    // A line is its text and eight digits: a text that ends where another goes on with digits meets the other one's digits.
    std::vector<std::pair<Text, Text>> lieder(12, {"T", "x"});
    lieder[1] = {"A", ""};
    lieder[11] = {"A", "00000001"};
    const auto nummern = alle(mit_Liedern(lieder), Sortierung::Artist);
    EXPECT_EQ(nummern[0], 12);
    EXPECT_EQ(nummern[1], 2);
}

TEST(Lieder_Liste, Suche) {
    const Modell modell = mit_Liedern({{"Bx", "Xa"}, {"Motörhead", "Ace"}, {"x", "Straße"}});
    struct Fall {
        Text suche;
        Sortierung sortierung;
        Nummern nummern;
    };
    const Fall fälle[] = {
        {"ab", Sortierung::Titel, {1}},     {"ab", Sortierung::Artist, {}},
        {"xx", Sortierung::Artist, {1}},    {"MOTÖR", Sortierung::Artist, {2}},
        {"ö", Sortierung::Titel, {2}},      {"motor", Sortierung::Artist, {}},  // the search does not fold accents
        {"aße", Sortierung::Titel, {3}},    {"asse", Sortierung::Titel, {}},
        {"", Sortierung::Titel, {2, 3, 1}},
    };
    for (const Fall& fall : fälle) EXPECT_EQ(alle(modell, fall.sortierung, fall.suche), fall.nummern) << fall.suche;
}

// The order is kept from one build to the next: every change of the songs must show all the same.
TEST(Lieder_Liste, GemerkteOrdnungFolgtJederAenderung) {
    Modell modell = mit_Liedern({{"b", "x"}, {"a", "x"}, {"c", "x"}});
    Liederordnung ordnung;
    const auto prüfen = [&](const char* was) {
        for (const Text suche : {"", "x", "bx", "q"})
            for (const Sortierung sortierung : {Sortierung::Artist, Sortierung::Titel})
                EXPECT_EQ(ordnung.gefilterte_Lieder(modell, sortierung, suche, [](int k) { return k == 1; }),
                          alle(modell, sortierung, suche))
                    << was << " \"" << suche << '"';
    };
    auto& lieder = modell.Lieder;
    prüfen("at first");
    lieder[3].Artist = "A";
    prüfen("another case only");
    lieder[2].Titel = "q";
    prüfen("another title");
    std::swap(lieder[1], lieder[3]);
    prüfen("numbers exchanged");
    lieder[1].Artist = "Ax";
    lieder[2].Artist = "bx";
    lieder[1].Titel = lieder[2].Titel = "";
    prüfen("the seam elsewhere");
    --modell.Anzahl_Lieder;
    prüfen("one less");
    lieder[++modell.Anzahl_Lieder].Titel = "Bx";
    prüfen("one more");
    modell.Anzahl_Lieder = 0;
    prüfen("none");
}

}  // namespace
}  // namespace tonkartei
