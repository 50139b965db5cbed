#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "grundlagen/codepage.hpp"
#include "grundlagen/feld.hpp"
#include "grundlagen/text.hpp"
#include "grundlagen/zahl.hpp"
#include "grundlagen/zeit.hpp"

namespace tonkartei {
namespace {

TEST(Codepage, AlleBytesHinUndZurueckUndFremdesWirdFragezeichen) {
    for (int i = 0; i < 256; ++i) {
        const std::string byte(1, static_cast<char>(i));
        EXPECT_EQ(nach_1252(aus_1252(byte)), byte) << i;
        EXPECT_EQ(Zeichenzahl(aus_1252(byte)), 1U) << i;
    }
    EXPECT_EQ(aus_1252("\x80\x9F\xE4"), "€Ÿä");
    EXPECT_EQ(auf_Seite("Дмитрий – ä"), "??????? – ä");
    // Invalid, overlong, surrogate and cut-off sequences are one "?" a byte.
    EXPECT_EQ(auf_Seite("a\xFF\xC0\x80\xED\xA0\x80z\xE2\x82"), "a??????z??");
}

TEST(TextTest, ZeichenStattBytes) {
    EXPECT_EQ(links("Größe", 3), "Grö");
    EXPECT_EQ(rechts("Größe", 3), "öße");
    EXPECT_EQ(ab("Größe", 3), "öße");
    EXPECT_EQ(ab("Größe", 9), "");
    EXPECT_EQ(getrimmt("  a b \t "), "a b \t");
    EXPECT_EQ(Zeichen_entfernen("aabbab", "ab"), "");
    EXPECT_EQ(ersetzt("a&b&&", "&", "&&"), "a&&b&&&&");
    EXPECT_EQ(groß("äöüß éœžÿ×÷ x"), "ÄÖÜß ÉŒŽŸ×÷ X");
}

TEST(TextTest, DeutscheReihenfolge) {
    std::vector<Text> namen = {"Zebra", "Äpfel", "apfel", "Straße 2", "strasse 1", "Ösen", "osen", "ÿ", "Œuvre", "y"};
    std::stable_sort(namen.begin(), namen.end(),
                     [](const Text& a, const Text& b) { return Sortierschlüssel(a) < Sortierschlüssel(b); });
    EXPECT_EQ(namen,
              (std::vector<Text>{"Äpfel", "apfel", "Œuvre", "Ösen", "osen", "strasse 1", "Straße 2", "ÿ", "y", "Zebra"}));
}

TEST(ZahlTest, RundenZurGeradenUndGrenzen) {
    EXPECT_EQ(gerundet(0.5), 0);
    EXPECT_EQ(gerundet(1.5), 2);
    EXPECT_EQ(gerundet(2.5), 2);
    EXPECT_EQ(gerundet(-2.5), -2);
    EXPECT_EQ(gerundet(-0.51), -1);
    EXPECT_EQ(gerundet(2147483647.4), 2147483647);
    EXPECT_THROW(gerundet(2147483647.5), Laufzeitfehler);
    EXPECT_THROW(gerundet_Byte(-1), Laufzeitfehler);
    EXPECT_EQ(gerundet_Byte(255.5 - 0.1), 255);
}

TEST(ZahlTest, ZahlwertUndNullen) {
    struct Fall {
        const char* text;
        double wert;
    };
    for (const Fall& fall : {Fall{" 12 ", 12}, Fall{"0.5", 0.5}, Fall{"0,5", 0}, Fall{"-3x", -3}, Fall{"x3", 0}, Fall{"", 0},
                             Fall{".25.5", 0.25}, Fall{"+7", 7}, Fall{"- 7", 0}, Fall{"00012abc", 12}})
        EXPECT_DOUBLE_EQ(Zahlwert(fall.text), fall.wert) << fall.text;
    EXPECT_EQ(Zahl_mit_Nullen(12, 8), "00000012");
    EXPECT_EQ(Zahl_mit_Nullen(123, 2), "");
    EXPECT_EQ(Prozent(1, 3), 33);
    EXPECT_EQ(Prozent(5, 4), 100);
    EXPECT_EQ(Prozent(1, 0), 0);
}

TEST(ZeitTest, TeileLaufenUeberUndFormen) {
    EXPECT_EQ(Sekunden_von(Zeit_aus(0, 90, 75)), 5475);
    EXPECT_EQ(Minuten_Sekunden(Zeit_aus(1, 2, 3)), "02:03");
    EXPECT_LT(Zeit_aus(0, 0, 3 - 10), 0);
    EXPECT_THROW(Zeit_aus(40000, 0, 0), Laufzeitfehler);
    for (int s = 0; s < 86400; s += 7) EXPECT_EQ(Sekunden_von(Zeit_aus(0, s / 60, s % 60)), s);
    EXPECT_EQ(Dauer_Text(0), "00:00");
    EXPECT_EQ(Dauer_Text(90), "00:02");
    EXPECT_EQ(Dauer_Text(150), "00:02");
    EXPECT_EQ(Dauer_Text(86400), "24:00");
    EXPECT_EQ(Dauer_Text(86401), "24h");
    EXPECT_EQ(Dauer_Text(31.9 * 3600), "31h");

    const Zeitpunkt punkt{2026, 3, 5, 14, 7, 33};
    EXPECT_EQ(mittleres_Datum(punkt), "05. Mrz 2026");
    EXPECT_EQ(langes_Datum(punkt), "Donnerstag, 5. März 2026");
    EXPECT_EQ(lange_Uhrzeit(punkt), "14:07:33");
    EXPECT_EQ(Zeitpunkt_aus(31, 14, 2025, 25, 61, 61), (Zeitpunkt{2026, 3, 4, 2, 2, 1}));
    EXPECT_THROW(Zeitpunkt_aus(1, 1, 30000, 0, 0, 0), Laufzeitfehler);
}

TEST(FeldTest, GrenzenUndAnfangswerte) {
    Feld<int, 100> feld;
    const auto& lesend = feld;
    EXPECT_EQ(lesend[100], 0);
    int& erste = feld[1];
    feld[100] = 5;
    erste = 7;
    EXPECT_EQ(lesend[1], 7);
    for (const long long falsch : {0LL, 101LL, -1LL}) EXPECT_THROW(feld[falsch], Laufzeitfehler) << falsch;
}

}  // namespace
}  // namespace tonkartei
