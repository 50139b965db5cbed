#include "plattform/kanaele.hpp"

#include <gtest/gtest.h>

#include "echt.hpp"
#include "plattform/hilfen.hpp"
#include "testordner.hpp"

namespace tonkartei {
namespace {

class KanäleTest : public testing::Test {
protected:
    Testordner ordner;
    Dateisystem_echt dateien;
    Kanäle kanäle{dateien};

    int lesend(std::string_view inhalt) { return kanäle.öffnen_zum_Lesen(ordner.datei("datei", inhalt)); }
};

TEST_F(KanäleTest, FormenByteFürByte) {
    const int nr = kanäle.öffnen_zum_Schreiben(ordner.pfad("neu"));
    kanäle.schreibe_Zeile(nr, "Tonkartei");
    kanäle.schreibe_Zeile(nr, " Für, \"Elise\" € ÿ 漢");
    kanäle.schreibe_Zeile(nr, "");
    for (const std::int64_t zahl : {6LL, -1LL, 0LL, -2147483648LL, 9223372036854775807LL}) kanäle.schreibe_Zahl(nr, zahl);
    for (const int zahl : {45, -7}) kanäle.schreibe_reine_Zahl(nr, zahl);
    kanäle.schreibe_Rohzeile(nr, "/m/\xC3\xA4\xFF");
    kanäle.schließen(nr, true);
    EXPECT_EQ(ordner.inhalt("neu"),
              "Tonkartei\r\n F\xFCr, \"Elise\" \x80 \xFF ?\r\n\r\n 6 \r\n-1 \r\n 0 \r\n-2147483648 \r\n 9223372036854775807 "
              "\r\n45\r\n-7\r\n/m/\xC3\xA4\xFF\r\n");
}

TEST_F(KanäleTest, ZeilenUndWerte) {
    const struct {
        const char* inhalt;
        std::vector<Text> zeilen;
        std::vector<Text> werte;
    } fälle[] = {
        {"", {}, {}},
        {"a", {"a"}, {"a"}},
        {"a\r\n\r\nb\r\n", {"a", "", "b"}, {"a", "", "b"}},
        {" a , b ,\r\n c", {" a , b ,", " c"}, {"a", "b", "", "c"}},
        {"a\rb\nc\n\rd\r\r\ne", {"a\rb\nc\n\rd\r", "e"}, {"a", "b", "c", "", "d", "", "e"}},
        {"a\r", {"a\r"}, {"a"}},
        {"\n", {"\n"}, {""}},
        {"a,", {"a,"}, {"a"}},
        {"\"a,b\" c", {"\"a,b\" c"}, {"\"a", "b\" c"}},
        {"  \t x\t ", {"  \t x\t "}, {"\t x\t"}},
    };
    for (const auto& fall : fälle) {
        std::vector<Text> zeilen;
        std::vector<Text> werte;
        int nr = lesend(fall.inhalt);
        const auto lesen = [&](auto& ziel, auto einmal) {
            EXPECT_EQ(Fehler_von([&] {
                          while (true) ziel.push_back((kanäle.*einmal)(nr));
                      }),
                      62);
            kanäle.schließen(nr);
        };
        lesen(zeilen, &Kanäle::lese_Zeile);
        nr = lesend(fall.inhalt);
        lesen(werte, &Kanäle::lese_Wert);
        EXPECT_EQ(zeilen, fall.zeilen) << fall.inhalt;
        EXPECT_EQ(werte, fall.werte) << fall.inhalt;
    }
}

// Line ends, values and long lines at every place around the end of the buffer.
TEST_F(KanäleTest, GrenzenDesPuffers) {
    constexpr auto puffer = std::size_t{64} * 1024;
    for (std::size_t länge = puffer - 4; länge <= puffer + 3; ++länge) {
        const std::string lang(länge, 'x');
        int nr = lesend(lang + "\r\n\r\n 7 ,8\r\nlast");
        EXPECT_TRUE(kanäle.lese_Zeile(nr) == lang) << länge;
        EXPECT_EQ(kanäle.lese_Zeile(nr), "") << länge;
        EXPECT_EQ(kanäle.lese_Long(nr), 7) << länge;
        EXPECT_EQ(kanäle.lese_Byte(nr), 8) << länge;
        EXPECT_EQ(kanäle.lese_Zeile(nr), "last") << länge;
        kanäle.schließen(nr);
        nr = lesend(lang + "\r\n" + std::string(länge, ' ') + "v\r\nw");
        EXPECT_TRUE(kanäle.lese_Wert(nr) == lang) << länge;
        for (const char* wert : {"v", "w"}) EXPECT_EQ(kanäle.lese_Wert(nr), wert) << länge;
        kanäle.schließen(nr);
    }
}

TEST_F(KanäleTest, Zahlen) {
    const int nr = lesend("2147483647,2147483648,-2147483648,2.5,3.5,x,,255,255.5,256,-1,  12abc\r\n  ");
    EXPECT_EQ(kanäle.lese_Long(nr), 2147483647);
    EXPECT_EQ(Fehler_von([&] { kanäle.lese_Long(nr); }), 6);
    for (const Long zahl : {-2147483647 - 1, 2, 4, 0}) EXPECT_EQ(kanäle.lese_Long(nr), zahl);
    EXPECT_EQ(kanäle.lese_Byte(nr), 0);
    EXPECT_EQ(kanäle.lese_Byte(nr), 255);
    for (int i = 0; i < 3; ++i) EXPECT_EQ(Fehler_von([&] { kanäle.lese_Byte(nr); }), 6);
    EXPECT_EQ(kanäle.lese_Byte(nr), 12);
    // A number cut off in front of its digits is no 0.
    EXPECT_EQ(Fehler_von([&] { kanäle.lese_Long(nr); }), 62);
}

TEST_F(KanäleTest, NummernUndModus) {
    const Text pfad = ordner.datei("lesen", "x");
    EXPECT_EQ(kanäle.öffnen_zum_Lesen(pfad), 1);
    EXPECT_EQ(kanäle.öffnen_zum_Schreiben(ordner.pfad("schreiben")), 2);
    EXPECT_EQ(Fehler_von([&] { kanäle.schreibe_Zeile(1, "x"); }), 54);
    EXPECT_EQ(Fehler_von([&] { kanäle.lese_Zeile(2); }), 54);
    for (const int nummer : {0, -1, 3, 256}) EXPECT_EQ(Fehler_von([&] { kanäle.lese_Zeile(nummer); }), 52);
    kanäle.schließen(1);
    EXPECT_EQ(Fehler_von([&] { kanäle.schließen(1); }), 52);
    EXPECT_EQ(Fehler_von([&] { kanäle.öffnen_zum_Lesen(ordner.pfad("fehlt")); }), 53);
    EXPECT_EQ(kanäle.öffnen_zum_Lesen(pfad), 1);
    for (int i = 3; i <= 255; ++i) ASSERT_EQ(kanäle.öffnen_zum_Lesen(pfad), i);
    EXPECT_EQ(Fehler_von([&] { kanäle.öffnen_zum_Lesen(pfad); }), 67);
    kanäle.schließen(77);
    EXPECT_EQ(kanäle.öffnen_zum_Lesen(pfad), 77);
}

TEST_F(KanäleTest, EndeSchreibtNichtsMehr) {
    {
        Kanäle andere(dateien);
        andere.schreibe_Zeile(andere.öffnen_zum_Schreiben(ordner.pfad("neu")), "halb");
    }
    EXPECT_EQ(ordner.inhalt("neu"), "");
    EXPECT_NO_THROW(dateien.löschen(ordner.pfad("neu")));
}

}  // namespace
}  // namespace tonkartei
