// What songs are added from, at its worst: list files made to do harm, too many songs, other collections cut anywhere.
#include <sys/resource.h>

#include "programm/buehne.hpp"

namespace tonkartei {
namespace {

class Quellen : public Bühne {
protected:
    std::string a = sammlung("a");

    void andere() {
        geschehen();
        hände({"klick Tonkartei.add_Datenbank", "setze Datenbank_öffnen.Pfad " + ordner.pfad("b"),
               "klick Datenbank_öffnen.Ok"});
    }
    // Confirms all boxes, and gives up at the list of songs; whether it was told that something is wrong.
    bool durchspielen(const std::string& fall) {
        andere();
        for (int n = 0; n < 6 && b->bereit() != "schleife"; ++n)
            hand(b->bereit() == "meldung" ? b->ereignis("meldung")["knöpfe"].size() == 1 ? "antwort OK" : "antwort Ja"
                 : b->bereit_name() == "DB_add_start_Kategorien" ? "klick DB_add_start_Kategorien.Ok"
                                                                 : "klick neue_Lieder_Liste.Abbruch");
        EXPECT_EQ(b->bereit(), "schleife") << fall;
        EXPECT_EQ(b->fenster("Tonkartei")["aktiv"], true) << fall;
        return std::any_of(Ablauf.begin(), Ablauf.end(), [](const auto& box) { return box.ends_with("| i"); });
    }
};

// Read in seconds, and not into the memory.
TEST_F(Quellen, schlimme_Listendateien) {
    constexpr std::size_t fünfzig_MB = 50'000'000;
    const std::string lied = ordner.datei("lied.mp3", bytes(9));
    const struct {
        const char* name;
        std::string stück;
        std::size_t mal;
        int gefunden;
    } fälle[] = {
        {"Namen, die es nicht gibt", "Some Band - A song that is not here.mp3\r\n", fünfzig_MB / 41, 1},
        {"eine Zeile ohne Ende", std::string(1000, 'x'), fünfzig_MB / 1000, 0},
        {"lange Zeilen", std::string(1'000'000, 'x') + "\r\n", 10, 1},
        {"leere Zeilen", "\r\n", 5'000'000, 1},
        {"Nullbytes", std::string(1000, '\0') + "\n" + lied + std::string("\0\n", 2), 10'000, 1},
        {"Kommas und Blanks", ", ,  ,", 1'000'000, 1},
        {"zu viele", "lied.mp3\n", 5000, 5001},
    };
    for (const auto& fall : fälle) {
        SCOPED_TRACE(fall.name);
        {
            std::ofstream strom(ordner.pfad("liste.m3u"), std::ios::binary);
            std::string block;
            for (std::size_t i = 0; i < fall.mal; ++i) {
                block += fall.stück;
                if (block.size() < 1'000'000 && i + 1 < fall.mal) continue;
                strom << block;
                block.clear();
            }
            strom << lied;
        }
        öffnen(a, "I");
        hände({"klick Tonkartei.Lieder_hinzufügen_Playlist", "pfad " + ordner.pfad("liste.m3u")});
        if (fall.gefunden > 5000) {
            EXPECT_EQ(geschehen().back(), "Laufzeitfehler | 9");
            EXPECT_EQ(b->Ende_abwarten(), 1);
        } else if (fall.gefunden == 0) {
            EXPECT_EQ(geschehen().back(), "Fehler | Es wurden keine Lieder zum hinzufügen gefunden! | i");
        } else {
            EXPECT_EQ(b->zeilen("neue_Lieder_Liste.gefundene_Lieder"), Zeilen{"lied.mp3"});
        }
        b.reset();
    }
    // Of the largest process so far, in KByte; the sanitizers keep freed memory for themselves.
    rusage gebraucht{};
    ASSERT_EQ(getrusage(RUSAGE_CHILDREN, &gebraucht), 0);
    EXPECT_TRUE(gebraucht.ru_maxrss < 120'000 || std::getenv("ASAN_OPTIONS") != nullptr) << gebraucht.ru_maxrss;
}

TEST_F(Quellen, mehr_Dateien_als_Lieder_Platz_haben) {
    ordner.ordner("quelle");
    const std::string eine = ordner.datei("eine", "x");
    for (int n = 1; n <= 5001; ++n)
        std::filesystem::create_hard_link(eine, ordner.pfad("quelle/" + std::to_string(n) + ".mp3"));
    öffnen(a);
    hände({"klick Tonkartei.Lieder_hinzufügen_Verzeichnis", "setze Verzeichnis_add.Pfad " + ordner.pfad("quelle"),
           "klick Verzeichnis_add.Ok"});
    EXPECT_EQ(b->ereignis("laufzeitfehler")["nummer"], 9);
    EXPECT_EQ(b->Ende_abwarten(), 1);
}

// Cut at any byte, and with any failing look at it: told, and nothing is taken from it, unless all that is missing is the
// end of the last number.
TEST_F(Quellen, andere_Datenbank_abgeschnitten) {
    const Sammlung kleine{.Lieder = {{"Anna", "Zug"}}, .Kategorien = {"Alle", "Rock"}};
    const std::string ganz = kleine.bytes();
    sammlung("b", kleine);
    öffnen(a);
    for (std::size_t ende = 0; ende < ganz.size() && !HasFailure(); ++ende) {
        ordner.datei("b/MP3_Info.MDB", ganz.substr(0, ende));
        const std::string fall = "bis " + std::to_string(ende);
        EXPECT_EQ(durchspielen(fall), ende <= ganz.find("20\r\n")) << fall;
    }
    ordner.datei("b/MP3_Info.MDB", ganz);
    for (const std::string vorgang : {"öffnen", "lesen"})
        for (int n = 1; n <= 4 && !HasFailure(); ++n) {
            const std::string fall = vorgang + " " + std::to_string(n);
            hand("störung " + fall);
            durchspielen(fall);
        }
    // Nothing holds the file any more.
    hände({"störung öffnen 1000", "störung lesen 1000"});
    ordner.datei("b/MP3_Info.MDB", ganz);
    andere();
    hand("klick DB_add_start_Kategorien.Ok");
    EXPECT_EQ(b->bereit_name(), "neue_Lieder_Liste");
}

// Version 1.01 knows neither limit nor times; in a folder that cannot be written to it is converted elsewhere.
TEST_F(Quellen, andere_Datenbank_alter_Version) {
    std::string alt = "Tonkartei\r\nV 1.01 05\r\n 2 \r\nAlle\r\nRock\r\n 0 \r\n";
    for (int s = 1; s <= 9; ++s) alt += " 1 \r\nSchema\r\n 1 \r\n";
    alt += " 1 \r\n 3 \r\nAlt\r\n 5 \r\n 2 \r\nLied\r\n";
    ordner.ordner("b");
    for (const bool geschützt : {true, false}) {
        ordner.datei("b/MP3_Info.MDB", alt);
        öffnen(a);
        if (geschützt) hand("schreibschutz " + ordner.pfad("b") + " an");
        andere();
        for (int n = 0; n < 3 && b->bereit() == "meldung"; ++n) hand("antwort Ja");
        EXPECT_EQ(b->bereit_name(), "DB_add_start_Kategorien") << geschützt;
        hand("klick DB_add_start_Kategorien.Ok");
        EXPECT_EQ(b->zeilen("neue_Lieder_Liste.gefundene_Lieder"), Zeilen{"Alt - Lied"});
        hand("klick neue_Lieder_Liste.Abbruch");
        EXPECT_EQ(mdb("b") == alt, geschützt);
        // The open collection is not taken for the converted one: it is saved.
        beenden();
        for (const auto& datei : std::filesystem::recursive_directory_iterator(ordner.pfad("")))
            EXPECT_NE(datei.path().filename(), "Tempkonv.MDB");
    }
    // Numbers that cannot be: told, and the open collection is none the worse.
    öffnen(a);
    for (const char* kategorien : {"300", "-1"}) {
        std::string falsch = alt;
        ordner.datei("b/MP3_Info.MDB", falsch.replace(falsch.find(" 2 "), 3, kategorien));
        EXPECT_TRUE(durchspielen(kategorien));
    }
}

}  // namespace
}  // namespace tonkartei
