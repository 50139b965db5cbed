#include "plattform/kanaele.hpp"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <functional>

#include "grundlagen/codepage.hpp"
#include "grundlagen/fehler.hpp"
#include "plattform/linux/dateisystem_linux.hpp"
#include "testordner.hpp"

namespace tonkartei {
namespace {

int Fehler_von(const std::function<void()>& arbeit) {
    try {
        arbeit();
    } catch (const Laufzeitfehler& fehler) {
        return fehler.Nummer();
    }
    return 0;
}

// No file of this process grows beyond a limit while this lives: the disk is full.
class Voller_Datenträger {
public:
    explicit Voller_Datenträger(rlim_t grenze) {
        std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &alt_);
        const rlimit neu{grenze, alt_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &neu);
    }
    ~Voller_Datenträger() { ::setrlimit(RLIMIT_FSIZE, &alt_); }

private:
    rlimit alt_{};
};

class KanäleTest : public testing::Test {
protected:
    Testordner ordner;
    Dateisystem_Linux dateien;
    Kanäle kanäle{dateien};

    int lesend(std::string_view inhalt) { return kanäle.öffnen_zum_Lesen(ordner.datei("datei", inhalt)); }
};

TEST_F(KanäleTest, FormenByteFürByte) {
    const int nr = kanäle.öffnen_zum_Schreiben(ordner.pfad("neu"));
    kanäle.schreibe_Zeile(nr, "Tonkartei");
    kanäle.schreibe_Zeile(nr, " Für, \"Elise\" € ÿ 漢");
    kanäle.schreibe_Zeile(nr, "");
    for (const std::int64_t zahl : {6LL, -1LL, 0LL, -2147483648LL, 9223372036854775807LL}) kanäle.schreibe_Zahl(nr, zahl);
    kanäle.schreibe_reine_Zahl(nr, 45);
    kanäle.schreibe_reine_Zahl(nr, -7);
    kanäle.schreibe_Rohzeile(nr, "/m/\xC3\xA4\xFF");
    kanäle.schließen(nr, true);
    EXPECT_EQ(ordner.inhalt("neu"),
              "Tonkartei\r\n F\xFCr, \"Elise\" \x80 \xFF ?\r\n\r\n 6 \r\n-1 \r\n 0 \r\n-2147483648 \r\n 9223372036854775807 "
              "\r\n45\r\n-7\r\n/m/\xC3\xA4\xFF\r\n");
}

// A number cut off in front of its digits is no 0.
TEST_F(KanäleTest, BlanksAlleinSindKeinWert) {
    const int nr = lesend("1\r\n  ");
    EXPECT_EQ(kanäle.lese_Long(nr), 1);
    EXPECT_FALSE(kanäle.am_Ende(nr));
    EXPECT_EQ(Fehler_von([&] { kanäle.lese_Long(nr); }), 62);
}

TEST_F(KanäleTest, ZeilenUndWerte) {
    const struct {
        const char* inhalt;
        std::vector<Text> zeilen;
        std::vector<Text> werte;
    } fälle[] = {
        {"", {}, {}},
        {"a", {"a"}, {"a"}},
        {"a\r\nb", {"a", "b"}, {"a", "b"}},
        {"a\r\n\r\nb\r\n", {"a", "", "b"}, {"a", "", "b"}},
        {" a , b ,\r\n c", {" a , b ,", " c"}, {"a", "b", "", "c"}},
        {"a\rb\nc\n\rd\r\r\ne", {"a\rb\nc\n\rd\r", "e"}, {"a", "b", "c", "", "d", "", "e"}},
        {"a\r", {"a\r"}, {"a"}},
        {"\r", {"\r"}, {""}},
        {"\n", {"\n"}, {""}},
        {"a,", {"a,"}, {"a"}},
        {"\"a,b\" c", {"\"a,b\" c"}, {"\"a", "b\" c"}},
        {"  \t x\t ", {"  \t x\t "}, {"\t x\t"}},
    };
    for (const auto& fall : fälle) {
        std::vector<Text> zeilen;
        std::vector<Text> werte;
        int nr = lesend(fall.inhalt);
        while (!kanäle.am_Ende(nr)) zeilen.push_back(kanäle.lese_Zeile(nr));
        EXPECT_EQ(Fehler_von([&] { kanäle.lese_Zeile(nr); }), 62) << fall.inhalt;
        kanäle.schließen(nr);
        nr = lesend(fall.inhalt);
        while (!kanäle.am_Ende(nr)) werte.push_back(kanäle.lese_Wert(nr));
        EXPECT_EQ(Fehler_von([&] { kanäle.lese_Wert(nr); }), 62) << fall.inhalt;
        kanäle.schließen(nr);
        EXPECT_EQ(zeilen, fall.zeilen) << fall.inhalt;
        EXPECT_EQ(werte, fall.werte) << fall.inhalt;
    }
}

TEST_F(KanäleTest, AlleBytesKommenWieder) {
    std::string alle;
    for (int code = 0; code < 256; ++code) alle.push_back(static_cast<char>(code));
    const int nr = kanäle.öffnen_zum_Schreiben(ordner.pfad("neu"));
    kanäle.schreibe_Zeile(nr, aus_1252(alle));
    kanäle.schreibe_Zeile(nr, "x");
    kanäle.schließen(nr);
    EXPECT_EQ(ordner.inhalt("neu"), alle + "\r\nx\r\n");
    const int wieder = kanäle.öffnen_zum_Lesen(ordner.pfad("neu"));
    EXPECT_EQ(nach_1252(kanäle.lese_Zeile(wieder)), alle);
    EXPECT_EQ(kanäle.lese_Zeile(wieder), "x");
}

// Line ends, values and long lines at every place around the end of the buffer.
TEST_F(KanäleTest, GrenzenDesPuffers) {
    constexpr std::size_t puffer = 64 * 1024;
    for (std::size_t länge = puffer - 4; länge <= puffer + 3; ++länge) {
        const std::string lang(länge, 'x');
        int nr = lesend(lang + "\r\n\r\n 7 ,8\r\nlast");
        EXPECT_TRUE(kanäle.lese_Rohzeile(nr) == lang) << länge;
        EXPECT_EQ(kanäle.lese_Zeile(nr), "") << länge;
        EXPECT_EQ(kanäle.lese_Long(nr), 7) << länge;
        EXPECT_EQ(kanäle.lese_Byte(nr), 8) << länge;
        EXPECT_EQ(kanäle.lese_Zeile(nr), "last") << länge;
        EXPECT_TRUE(kanäle.am_Ende(nr));
        kanäle.schließen(nr);
        nr = lesend(lang + "\r\n" + std::string(länge, ' ') + "v\r\nw");
        EXPECT_TRUE(kanäle.lese_Wert(nr) == lang) << länge;
        EXPECT_EQ(kanäle.lese_Wert(nr), "v") << länge;
        EXPECT_EQ(kanäle.lese_Wert(nr), "w") << länge;
        kanäle.schließen(nr);
    }
    std::string viel;
    const int nr = kanäle.öffnen_zum_Schreiben(ordner.pfad("neu"));
    for (int i = 0; i < 20000; ++i) {
        kanäle.schreibe_Zahl(nr, i);
        viel += " " + std::to_string(i) + " \r\n";
    }
    kanäle.schreibe_Rohzeile(nr, std::string(3 * puffer, 'y'));
    viel += std::string(3 * puffer, 'y') + "\r\n";
    kanäle.schließen(nr);
    EXPECT_TRUE(ordner.inhalt("neu") == viel);
    const int wieder = kanäle.öffnen_zum_Lesen(ordner.pfad("neu"));
    for (int i = 0; i < 20000; ++i) ASSERT_EQ(kanäle.lese_Long(wieder), i);
    EXPECT_EQ(kanäle.lese_Zeile(wieder).size(), 3 * puffer);
}

TEST_F(KanäleTest, Zahlen) {
    const int nr = lesend("2147483647,2147483648,-2147483648,2.5,3.5,x,,255,255.5,256,-1,  12abc");
    EXPECT_EQ(kanäle.lese_Long(nr), 2147483647);
    EXPECT_EQ(Fehler_von([&] { kanäle.lese_Long(nr); }), 6);
    EXPECT_EQ(kanäle.lese_Long(nr), -2147483647 - 1);
    EXPECT_EQ(kanäle.lese_Long(nr), 2);
    EXPECT_EQ(kanäle.lese_Long(nr), 4);
    EXPECT_EQ(kanäle.lese_Long(nr), 0);
    EXPECT_EQ(kanäle.lese_Byte(nr), 0);
    EXPECT_EQ(kanäle.lese_Byte(nr), 255);
    for (int i = 0; i < 3; ++i) EXPECT_EQ(Fehler_von([&] { kanäle.lese_Byte(nr); }), 6);
    EXPECT_EQ(kanäle.lese_Byte(nr), 12);
}

TEST_F(KanäleTest, NummernUndModus) {
    const Text pfad = ordner.datei("lesen", "x");
    const int eins = kanäle.öffnen_zum_Lesen(pfad);
    const int zwei = kanäle.öffnen_zum_Schreiben(ordner.pfad("schreiben"));
    const int drei = kanäle.öffnen_zum_Lesen(pfad);
    EXPECT_EQ((std::vector{eins, zwei, drei}), (std::vector{1, 2, 3}));
    EXPECT_EQ(Fehler_von([&] { kanäle.schreibe_Zeile(1, "x"); }), 54);
    EXPECT_EQ(Fehler_von([&] { kanäle.lese_Zeile(2); }), 54);
    EXPECT_EQ(Fehler_von([&] { kanäle.am_Ende(2); }), 54);
    for (const int nummer : {0, -1, 4, 256}) EXPECT_EQ(Fehler_von([&] { kanäle.lese_Zeile(nummer); }), 52);
    EXPECT_EQ(Fehler_von([&] { kanäle.öffnen_zum_Schreiben(pfad); }), 55);
    kanäle.schließen(1);
    EXPECT_EQ(Fehler_von([&] { kanäle.schließen(1); }), 52);
    EXPECT_EQ(Fehler_von([&] { kanäle.öffnen_zum_Lesen(ordner.pfad("fehlt")); }), 53);
    EXPECT_EQ(kanäle.öffnen_zum_Lesen(pfad), 1);
    for (int i = 4; i <= 255; ++i) ASSERT_EQ(kanäle.öffnen_zum_Lesen(pfad), i);
    EXPECT_EQ(Fehler_von([&] { kanäle.öffnen_zum_Lesen(pfad); }), 67);
    kanäle.schließen(77);
    EXPECT_EQ(kanäle.öffnen_zum_Lesen(pfad), 77);
}

// What cannot be written keeps its channel and its file, whether it shows while writing or while closing.
TEST_F(KanäleTest, VollerDatenträgerLässtDenKanalOffen) {
    const Text pfad = ordner.pfad("neu");
    const std::string zeile(1000, 'z');
    {
        const Voller_Datenträger voll(100'000);
        const int nr = kanäle.öffnen_zum_Schreiben(pfad);
        EXPECT_EQ(Fehler_von([&] {
                      for (int i = 0; i < 200; ++i) kanäle.schreibe_Zeile(nr, zeile);
                  }),
                  61);
        EXPECT_TRUE(kanäle.offen(nr));
        EXPECT_EQ(Fehler_von([&] { kanäle.schließen(nr); }), 61);
        EXPECT_TRUE(kanäle.offen(nr));
        EXPECT_EQ(Fehler_von([&] { dateien.umbenennen(pfad, ordner.pfad("x")); }), 75);
        EXPECT_EQ(Fehler_von([&] { kanäle.öffnen_zum_Schreiben(pfad); }), 55);
        EXPECT_EQ(kanäle.öffnen_zum_Schreiben(ordner.pfad("andere")), 2);
        kanäle.aufgeben(nr);
        EXPECT_FALSE(kanäle.offen(nr));
    }
    EXPECT_EQ(std::filesystem::file_size(pfad), 100'000U) << "giving up writes nothing more";
    dateien.umbenennen(pfad, ordner.pfad("x"));
    const int nr = kanäle.öffnen_zum_Schreiben(pfad);
    kanäle.schreibe_Zeile(nr, "wieder Platz");
    kanäle.schließen(nr);
    EXPECT_EQ(ordner.inhalt("neu"), "wieder Platz\r\n");
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
