// The five files: every byte of a name comes back, and whatever is cut off or damaged is told and never more than was there.
#include <gtest/gtest.h>

#include "austausch/fuenf_dateien.hpp"
#include "stoerfall.hpp"

namespace tonkartei {
namespace {

using Art = Fünf_Dateien::Art;

Text alle_Zeichen() {
    Text text;
    for (int code = 0; code < 256; ++code) text += Zeichen(code);
    return text;
}

class Datei_von : public testing::TestWithParam<Art> {
protected:
    Fünf_Dateien d;
    Text gelesen(const std::string& bytes) {
        d.inhalt(GetParam()) = bytes;
        return d.lesen(GetParam());
    }
};

TEST_P(Datei_von, alle_256_Bytes_eines_Namens_bleiben) {
    const Text name = alle_Zeichen();
    d.schreiben(GetParam(), name, "x " + name + " y");
    EXPECT_TRUE(d.ansicht.Meldungen.size() <= 1) << d.ansicht.Meldungen.back();
    const Text gelesen = d.lesen(GetParam());
    EXPECT_EQ(d.ansicht.Meldungen, std::vector<Text>{});
    Text kodiert = name;
    for (const auto& [zeichen, code] : {std::pair{"\n", 127}, {"\r", 128}, {"\"", 129}, {",", 130}})
        kodiert = ersetzt(kodiert, zeichen, Zeichen(code));
    const Text zeit = "|Montag, 10. September 2001 11:12:03";
    const Text erwartet = GetParam() == Art::MBP || GetParam() == Art::MAD ? Text("\n12\n3")
                          : GetParam() == Art::MVD ? "\n" + kodiert + "|x " + kodiert + " y|0" + zeit + "\n||-7" + zeit
                                                   : "\n" + name + "|x " + name + " y\nb|c";
    EXPECT_EQ(gelesen, erwartet);
    // What was read is written as it was.
    const std::string bytes = d.inhalt(GetParam());
    if (GetParam() == Art::BKV) d.verzeichnis.Backup_Verzeichnis_schreiben();
    if (GetParam() == Art::LIL) d.ignorierte.Ignorieren_schreiben();
    EXPECT_EQ(d.inhalt(GetParam()), bytes);
}

TEST_P(Datei_von, abgeschnitten_wird_sie_nicht_mehr) {
    d.schreiben(GetParam(), "Anna", "Zug, \"schnell\"");
    const std::string ganz = d.inhalt(GetParam());
    const Text alles = d.lesen(GetParam());
    ASSERT_NE(alles, "");
    const bool ganz_oder_nichts = GetParam() == Art::MBP || GetParam() == Art::MAD;
    an_jedem_Byte_abgeschnitten(ganz, [&](const std::string& bytes) {
        Text teil = gelesen(bytes);
        if (teil.ends_with('\r')) teil.pop_back();  // alone, it belongs to the line
        EXPECT_TRUE(alles.starts_with(teil)) << teil;
        // Only what stands on the last line may be missing without a word.
        const bool ohne_Wort = bytes.size() + 4 >= ganz.size() && !teil.empty();
        EXPECT_TRUE(ohne_Wort || d.ansicht.Meldungen.size() == 1);
        EXPECT_TRUE(!ganz_oder_nichts || teil.empty() || teil == alles) << teil;
        EXPECT_FALSE(d.kanäle.offen(1));
    });
}

INSTANTIATE_TEST_SUITE_P(Alle, Datei_von, testing::Values(Art::BKV, Art::MBP, Art::MVD, Art::MAD, Art::LIL));

TEST(Fünf_Dateien, Zahlen_die_es_nicht_geben_kann) {
    struct Fall {
        Art art;
        std::string rumpf;
        Text ergebnis;
        std::size_t Meldungen;
    };
    const std::string ende = "Datenbank Backup-Portions-Datei - Ende\r\n", lied = "a\r\n 1 \r\n0\r\n0\r\n1\r\nb\r\n";
    std::string viele;
    for (int i = 0; i < 5001; ++i) viele += "1\r\n";
    const std::vector<Fall> fälle{
        {Art::BKV, " 0 \r\n", "", 0},
        {Art::BKV, "-1 \r\n", "", 0},
        {Art::BKV, " 99999999999 \r\n", "", 1},
        {Art::MBP, "5000, 1 \r\n\r\nx\r\n-1\r\n0\r\n" + ende, "\n5000\n1", 0},
        {Art::MBP, "5001\r\n" + ende, "", 1},
        {Art::MBP, "99999999999\r\n" + ende, "", 1},
        {Art::MBP, viele + ende, "", 1},
        {Art::MAD, " 0 \r\n5\r\n", "", 0},
        {Art::MAD, "-1 \r\n5\r\n", "", 0},
        {Art::MAD, " 1 \r\n5000\r\n", "\n5000", 0},
        {Art::MAD, " 1 \r\n5001\r\n", "", 1},
        {Art::MAD, " 2 \r\n5\r\n0\r\n", "", 1},
        {Art::MAD, " 1 \r\n-5\r\n", "", 1},
        {Art::MAD, " 5001 \r\n" + viele, "", 1},
        {Art::MVD, " 0 \r\n", "", 0},
        {Art::MVD, "-1 \r\n" + lied, "", 0},
        {Art::MVD, " 5001 \r\n" + lied, "", 1},
        {Art::MVD, " 1 \r\n" + lied + "31\r\n2\r\n2001\r\n0\r\n0\r\n0\r\n", "\na|b|1|Samstag, 3. März 2001 00:00:00", 0},
        {Art::MVD, " 1 \r\n" + lied + "1\r\n1\r\n99999\r\n0\r\n0\r\n0\r\n", "", 1},
        {Art::LIL, "-1 \r\n", "", 0},
        {Art::LIL, " 5001 \r\na\r\nb\r\n", "", 1},
    };
    const char* kennungen[] = {"Backup-Verzeichnis", "Datenbank Backup-Portions-Datei", "Datenbank Vergleichs-Datei",
                               "Datenbank Anforderungs-Datei", "Datenbank Ignorieren-Liste"};
    for (const Fall& fall : fälle) {
        SCOPED_TRACE(fall.rumpf.substr(0, 40));
        Fünf_Dateien d;
        d.inhalt(fall.art) = "Tonkartei\r\nV 1.02 16\r\n" + std::string(kennungen[fall.art]) + "\r\n" + fall.rumpf;
        EXPECT_EQ(d.lesen(fall.art), fall.ergebnis);
        EXPECT_EQ(d.ansicht.Meldungen.size(), fall.Meldungen);
    }
}

TEST(Ignorieren_Liste, das_5001_Lied_hat_keinen_Platz) {
    Fünf_Dateien d;
    for (Long n = 1; n <= 5000; ++n) ASSERT_EQ(d.ignorierte.Ignorieren_neu(), n);
    EXPECT_EQ(d.ignorierte.Ignorieren_neu(), 0);
    EXPECT_EQ(
        d.ansicht.Meldungen,
        std::vector<Text>{"Lied ignorieren|Die Ignorieren-Liste ist voll! Es können maximal 5000 Lieder ignoriert werden!"});
}

}  // namespace
}  // namespace tonkartei
