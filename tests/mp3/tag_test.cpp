#include <gtest/gtest.h>

#include "mp3/bausteine.hpp"
#include "mp3/mp3_taghead.hpp"
#include "mp3/speicher_dateisystem.hpp"

namespace tonkartei {
namespace {

using namespace std::string_literals;

class Tag : public testing::Test {
protected:
    Speicher_Dateisystem dateien;
    MP3_TagHead mp3{dateien};

    void Datei(const std::string& inhalt) {
        dateien.Dateien["a.mp3"].Inhalt = inhalt;
        mp3.MP3_Datei = "a.mp3";
    }
    const std::string& Inhalt() { return dateien.Dateien["a.mp3"].Inhalt; }
    void TearDown() override { EXPECT_EQ(dateien.offene(), 0U) << "every way out closes the file"; }
};

TEST_F(Tag, Texte_werden_gesäubert) {
    const std::pair<std::string, Text> Fälle[] = {
        {"ab\0cd"s, "abcd"},
        {"  innen  bleibt  ", "innen  bleibt"},
        {"\0 \0 x \0"s, "x"},
        {"eine\r\nZeile", "eine\r\nZeile"},
        {"\t x", "\t x"},  // blanks only, no other white space
        {std::string(30, ' '), ""},
        {"\xE4\xF6\xFC\xDF \x80 \x81", "äöüß € \xC2\x81"},
        {std::string(30, '\xFC'), "üüüüüüüüüüüüüüüüüüüüüüüüüüüüüü"},
    };
    for (const auto& [bytes, erwartet] : Fälle) {
        Datei(Tag_Bytes{.Titel = bytes}.Block());
        ASSERT_TRUE(mp3.Tag_lesen());
        EXPECT_EQ(mp3.Tag_Titel, erwartet);
        EXPECT_EQ(mp3.Tag_Artist, "Artist") << "the neighbour keeps its place";
    }
}

TEST_F(Tag, ohne_Tag_bleiben_die_Felder) {
    Datei(Tag_Bytes{}.Block());
    ASSERT_TRUE(mp3.Tag_lesen());
    const std::string block = Tag_Bytes{.Titel = "anderer"}.Block();
    for (const std::string& inhalt : {""s, "TAG"s, block.substr(1), Tag_Bytes{.Marke = "tag"}.Block(), block + "x"}) {
        Datei(inhalt);
        EXPECT_FALSE(mp3.Tag_lesen());
        EXPECT_EQ(mp3.Tag_Titel, "Titel");
    }
    Datei(block);
    dateien.Fehler_bei_Lesung = dateien.Lesungen + 1;
    EXPECT_FALSE(mp3.Tag_lesen());
    EXPECT_EQ(mp3.Tag_Titel, "Titel");
}

// What nobody edited keeps its line breaks; where title and artist leave the tag they fall.
TEST_F(Tag, Schreiben_füllt_mit_Leerzeichen) {
    Datei("Ton" +
          Tag_Bytes{.Titel = "  al\r\nt", .Artist = "\nA\r ", .Kommentar = "k\0\x05\r\nz"s, .Genre = '\xFF'}.Block());
    Text titel, artist;
    mp3.Lied_Tag_lesen("a.mp3", titel, artist);
    EXPECT_EQ(titel + "|" + artist, "alt|A");
    ASSERT_TRUE(mp3.Tag_schreiben());
    Tag_Bytes neu{.Titel = "al\r\nt", .Artist = "\nA\r", .Kommentar = "k\x05\r\nz", .Genre = '\xFF', .Füllung = ' '};
    EXPECT_EQ(Inhalt(), "Ton" + neu.Block());

    mp3.Tag_Titel = "Übermäßig lange Überschrift, viel zu lang";
    mp3.Tag_Jahr = "20001";
    mp3.Tag_Album = "日本";
    ASSERT_TRUE(mp3.Tag_schreiben());
    neu.Titel =
        "\xDC"
        "berm\xE4\xDFig lange \xDC"
        "berschrift, vi";
    neu.Jahr = "2000";
    neu.Album = "??";
    EXPECT_EQ(Inhalt(), "Ton" + neu.Block());
}

TEST_F(Tag, Schreiben_ohne_Tag_überschreibt_das_Ende) {
    Datei(std::string(200, 'x'));
    mp3.Tag_Titel = "neu";
    ASSERT_TRUE(mp3.Tag_schreiben());
    const Tag_Bytes neu{"neu", "", "", "", "", 0, ' '};
    EXPECT_EQ(Inhalt(), std::string(72, 'x') + neu.Block());
}

TEST_F(Tag, misslungenes_Schreiben) {
    const std::string alt = Tag_Bytes{.Titel = "alt"}.Block();
    for (const std::string& inhalt : {alt.substr(1), ""s}) {
        Datei(inhalt);
        EXPECT_FALSE(mp3.Tag_schreiben());
        EXPECT_EQ(Inhalt(), inhalt);
    }
    mp3.MP3_Datei = "fehlt.mp3";
    EXPECT_FALSE(mp3.Tag_schreiben());
    EXPECT_FALSE(dateien.Dateien.contains("fehlt.mp3"));

    Datei(alt);
    dateien.Dateien["a.mp3"].nur_lesbar = true;
    EXPECT_FALSE(mp3.Tag_schreiben());
    EXPECT_EQ(Inhalt(), alt);

    dateien.Dateien["a.mp3"].nur_lesbar = false;
    Datei(std::string(130, 'x'));
    dateien.Fehler_bei_Schreibung = dateien.Schreibungen + 2;
    EXPECT_FALSE(mp3.Tag_schreiben());
    EXPECT_EQ(Inhalt(), "xxTAG" + std::string(125, 'x')) << "what had been written stays";
}

}  // namespace
}  // namespace tonkartei
