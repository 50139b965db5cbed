// List files: what is written byte for byte, and what is found in files of any bytes.
#include <gtest/gtest.h>

#include <algorithm>

#include "datenbank/m3u.hpp"
#include "mp3/speicher_dateisystem.hpp"

namespace tonkartei {
namespace {

// Remembers the largest piece that was asked for: the reader's buffer is not larger.
struct Platte : Speicher_Dateisystem {
    std::size_t größtes_Stück = 0;
    Griff öffnen(const Text& pfad, Dateimodus modus) override {
        if (pfad == "gesperrt") throw Dateifehler(70, pfad);
        return Speicher_Dateisystem::öffnen(pfad, modus);
    }
    std::size_t lesen(Griff griff, std::uint64_t stelle, std::span<char> ziel) override {
        größtes_Stück = std::max(größtes_Stück, ziel.size());
        return Speicher_Dateisystem::lesen(griff, stelle, ziel);
    }
};

struct M3U_Test : testing::Test {
    Platte platte;
    Kanäle kanäle{platte};
    Modell modell;
    M3U m3u{modell, kanäle};

    M3U_Test() {
        modell.Datenbank_Verzeichnis = "/Müsik \xfc/";
        modell.Anzahl_Lieder = 40;
    }
    M3U::Inhalt lesen(const std::string& bytes) {
        platte.Dateien["l"].Inhalt = bytes;
        const auto inhalt = m3u.lesen("l");
        EXPECT_EQ(platte.offene(), 0U);
        return inhalt;
    }
};

TEST_F(M3U_Test, schreibt_nur_was_ein_Lied_sein_kann) {
    platte.Dateien["l"];
    EXPECT_TRUE(m3u.Playlist_schreiben("l", {12, 41}));
    EXPECT_EQ(platte.Dateien["l"].Inhalt, "/Müsik \xfc/00000012.MP3\r\n/Müsik \xfc/00000041.MP3\r\n");
    EXPECT_FALSE(m3u.Playlist_schreiben("gesperrt", {3}));
    EXPECT_THROW(m3u.Playlist_schreiben("l", {0}), Laufzeitfehler);
    EXPECT_EQ(platte.offene(), 0U);
}

TEST_F(M3U_Test, findet_Lieder_der_Sammlung) {
    const std::string o = "/Müsik \xfc/";
    const struct {
        std::string bytes;
        long long zeilen;
        std::vector<Long> nummern;
    } fälle[] = {
        {"#EXTM3U\r\n#EXTINF:12,A - B\r\n" + o + "00000003.MP3\r\n" + o + "00000012.MP3", 5, {3, 12}},
        {"/mÜsik \xfc/7.mp3\n  " + o + "8.Mp3  \r" + o + "3x,9.mp3\n", 4, {7, 8}},  // a comma cuts
        {o + "40.MP3\n" + o + "41.MP3\n" + o + "99999999999999999999.MP3\n" + o + "40.4.MP3\n", 4, {40, 40}},
        {o + "0.MP3\n" + o + ".MP3\n" + o + "x.MP3\n" + o + "-3.MP3\n" + o + "-99999999999.MP3\n", 5, {0, 0, 0, -3, -1}},
        {"00000003.MP3\n/Müsik/00000003.MP3\n" + o + "3.MP4\n" + o + "MP3\n" + o + "\n.MP3\n", 6, {}},
        {"\r\n\r\n \r\n" + std::string("\0\xff\0,", 4) + "\n   ", 5, {}},
        {o + std::string("5\0.MP3\n", 7), 1, {5}},
    };
    for (const auto& fall : fälle) {
        const auto inhalt = lesen(fall.bytes);
        EXPECT_EQ(inhalt.Zeilen, fall.zeilen) << fall.bytes;
        EXPECT_EQ(inhalt.Nummern, fall.nummern) << fall.bytes;
    }
}

// A line without an end is passed over, whatever it begins with; what stands around it counts.
TEST_F(M3U_Test, endlose_Zeilen_bleiben_draußen) {
    const std::string gut = "/Müsik \xfc/00000003.MP3\r\n";
    const auto inhalt = lesen(gut + "/Müsik \xfc/4" + std::string(1'000'000, 'x') + ".MP3\r\n" + gut);
    EXPECT_EQ(inhalt.Zeilen, 3);
    EXPECT_EQ(inhalt.Nummern, (std::vector<Long>{3, 3}));
    platte.Dateien["l"] = {.Inhalt = gut, .Länge_dahinter = 100'000'000};
    EXPECT_EQ(m3u.lesen("l").Zeilen, 2);
    EXPECT_LE(platte.größtes_Stück, 1'000'000U);
}

}  // namespace
}  // namespace tonkartei
