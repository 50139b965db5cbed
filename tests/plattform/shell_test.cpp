#include <gtest/gtest.h>

#include <chrono>

#include "plattform/offene_datei.hpp"
#include "plattform/shellbuehne.hpp"

namespace tonkartei {
namespace {

TEST_F(ShellTest, Ziele) {
    ordner.datei("a", "1");
    ordner.datei("b", "2");
    ordner.ordner("ziel");
    EXPECT_EQ(tu(FO_COPY, {"a"}, {"c"}), "0");
    EXPECT_EQ(tu(FO_COPY, {"a"}, {"ziel"}), "0");
    EXPECT_EQ(tu(FO_COPY, {"a", "b"}, {"neu/tief"}, FOF_NOCONFIRMMKDIR), "0");
    EXPECT_EQ(tu(FO_MOVE, {"a", "b"}, {"ziel/x", "ziel/y"}, FOF_MULTIDESTFILES), "0");
    EXPECT_EQ(stand(), "c=1 neu/tief/a=1 neu/tief/b=2 ziel/a=1 ziel/x=1 ziel/y=2 ");
    EXPECT_EQ(tu(FO_RENAME, {"c"}, {"d"}), "0");
    EXPECT_EQ(tu(FO_RENAME, {"d"}, {"D"}), "0");
    EXPECT_EQ(tu(FO_MOVE, {"neu"}, {"ziel/sub"}), "0");
    EXPECT_EQ(tu(FO_MOVE, {"ziel/sub"}, {"fern"}), "0");
    EXPECT_EQ(stand(), "D=1 fern/tief/a=1 fern/tief/b=2 ziel/a=1 ziel/x=1 ziel/y=2 ");
    EXPECT_EQ(tu(FO_COPY, {"ziel"}, {"ziel/ziel2"}), "125") << "not into itself";
    EXPECT_EQ(tu(FO_COPY, {"fehlt"}, {"e"}), "2");
    EXPECT_EQ(tu(FO_DELETE, {"fehlt"}, {}, FOF_ALLOWUNDO), "2");
    EXPECT_EQ(tu(FO_MOVE, {"D", "fehlt"}, {"ziel/x"}, FOF_MULTIDESTFILES), "87");
    EXPECT_EQ(tu(99, {"D"}, {"x"}), "87");
    EXPECT_EQ(fragen, std::vector<Text>{});
    EXPECT_EQ(tu(FO_COPY, {"D"}, {"nirgends/D"}), "0!") << "a folder is not made without asking";
    EXPECT_EQ(fragen.size(), 1U);
    EXPECT_FALSE(ordner.da("nirgends"));
}

TEST_F(ShellTest, GleicheNamen) {
    const struct {
        std::uint32_t code;
        int flags;
        Shell_Antwort antwort;
        const char* ergebnis;
        const char* stand;
        std::size_t fragen;
    } fälle[] = {
        {FO_COPY, 0, Shell_Antwort::Ja, "0", "X=neu a=neu ", 1},
        {FO_COPY, 0, Shell_Antwort::Nein, "0!", "X=alt a=neu ", 1},
        {FO_COPY, FOF_NOCONFIRMATION, Shell_Antwort::Nein, "0", "X=neu a=neu ", 0},
        {FO_COPY, FOF_RENAMEONCOLLISION, Shell_Antwort::Nein, "0", "Kopie von x=neu X=alt a=neu ", 0},
        {FO_MOVE, 0, Shell_Antwort::Abbrechen, "0!", "X=alt a=neu ", 1},
        {FO_MOVE, FOF_RENAMEONCOLLISION, Shell_Antwort::Nein, "0", "Kopie von x=neu X=alt ", 0},
    };
    for (const auto& fall : fälle) {
        std::filesystem::remove_all(ordner.pfad("frisch"));
        ordner.datei("frisch/a", (ordner.ordner("frisch"), "neu"));
        ordner.datei("frisch/X", "alt");
        fragen.clear();
        antworten = {fall.antwort};
        EXPECT_EQ(tu(fall.code, {"frisch/a"}, {"frisch/x"}, fall.flags), fall.ergebnis);
        EXPECT_EQ(stand("frisch"), fall.stand) << fall.code << " " << fall.flags;
        EXPECT_EQ(fragen.size(), fall.fragen);
    }
    ordner.datei("q", "neu");
    ordner.datei("z", "alt");
    EXPECT_EQ(tu(FO_MOVE, {"q"}, {"z"}, FOF_NOCONFIRMATION), "0");
    EXPECT_EQ(tu(FO_COPY, {"z"}, {"z"}, FOF_RENAMEONCOLLISION), "0");
    EXPECT_EQ(tu(FO_COPY, {"z"}, {"z"}, FOF_RENAMEONCOLLISION), "0");
    std::filesystem::remove_all(ordner.pfad("frisch"));
    EXPECT_EQ(stand(), "Kopie (2) von z=neu Kopie von z=neu z=neu ");
    EXPECT_EQ(tu(FO_MOVE, {"z"}, {"z"}, FOF_NOCONFIRMATION), "113");
    ordner.ordner("sub");
    EXPECT_EQ(tu(FO_MOVE, {"z", "sub"}, {"sub", "z"}, FOF_MULTIDESTFILES | FOF_NOCONFIRMATION), "128");
    EXPECT_EQ(tu(FO_MOVE, {"sub"}, {"z"}, FOF_NOCONFIRMATION), "126");
    EXPECT_EQ(ordner.inhalt("z"), "neu");
}

// The source is open, so it cannot be moved: the target stays.
TEST_F(ShellTest, OffeneQuelle) {
    ordner.datei("lied", "lied");
    ordner.datei("ziel", "ziel");
    const Offene_Datei offen(dateien, ordner.pfad("lied"), Dateimodus::lesen);
    EXPECT_NE(tu(FO_MOVE, {"lied"}, {"ziel"}, FOF_NOCONFIRMATION), "0");
    EXPECT_EQ(stand(), "lied=lied ziel=ziel ");
}

TEST_F(ShellTest, ÜberLaufwerkeHinweg) {
    ordner.datei("lied", "musik");
    ordner.ordner("fern/tief");
    const auto damals = std::filesystem::last_write_time(ordner.weg("lied")) - std::chrono::hours(50000);
    std::filesystem::last_write_time(ordner.weg("lied"), damals);
    dateien.kopiert_kurz = true;
    EXPECT_EQ(tu(FO_MOVE, {"lied"}, {"fern/lied"}), "112");
    EXPECT_EQ(ordner.inhalt("lied"), "musik") << "the source stays until there is a whole copy";
    dateien.kopiert_kurz = false;
    EXPECT_EQ(tu(FO_MOVE, {"lied"}, {"fern/lied"}, FOF_NOCONFIRMATION), "0");
    EXPECT_FALSE(ordner.da("lied"));
    EXPECT_EQ(dateien.gesichert, 1) << "before the source went";
    EXPECT_EQ(std::filesystem::last_write_time(ordner.weg("fern/lied")), damals);
    EXPECT_EQ(tu(FO_DELETE, {"fern"}, {}, FOF_NOCONFIRMATION), "0");
    EXPECT_EQ(stand(), "");
}

TEST_F(ShellTest, Löschen) {
    // Only without the bin it asks.
    ordner.datei("a", "1");
    ordner.datei("b", "2");
    antworten = {Shell_Antwort::Nein, Shell_Antwort::Ja};
    EXPECT_EQ(tu(FO_DELETE, {"a"}, {}), "0!");
    EXPECT_EQ(tu(FO_DELETE, {"a", "b"}, {}), "0");
    EXPECT_EQ(std::exchange(fragen, {}),
              (std::vector<Text>{"Löschen von Dateien bestätigen|Möchten Sie \"a\" wirklich löschen?",
                                 "Löschen mehrerer Dateien bestätigen|Möchten Sie diese 2 Elemente wirklich löschen?"}));
    for (const char* inhalt : {"1", "2"}) {
        ordner.datei("Für Elise.mp3", inhalt);
        EXPECT_EQ(tu(FO_DELETE, {"Für Elise.mp3"}, {}, FOF_ALLOWUNDO), "0");
    }
    EXPECT_EQ(stand("korb/files"), "Für Elise.2.mp3=2 Für Elise.mp3=1 ");
}

}  // namespace
}  // namespace tonkartei
