// Adding songs while the disk or what it is given to read does its worst.
#include <sys/resource.h>

#include <fstream>

#include "programm/lied_buehne.hpp"

namespace tonkartei {
namespace {

class Hinzufügen : public Lied_Bühne {
protected:
    void Verzeichnis(const std::string& name) {
        hände({"klick Tonkartei.Lieder_hinzufügen_Verzeichnis", "setze Verzeichnis_add.Pfad " + ordner.pfad(name),
               "klick Verzeichnis_add.Ok"});
    }
    void andere(const std::string& name) {
        hände({"klick Tonkartei.add_Datenbank", "setze Datenbank_öffnen.Pfad " + ordner.pfad(name),
               "klick Datenbank_öffnen.Ok"});
    }
    // Confirms whatever comes, and takes the first category where one is asked for.
    void durchziehen() {
        for (int i = 0; i < 40 && b->bereit() != "schleife"; ++i)
            hand(b->bereit() == "meldung" ? b->ereignis("meldung")["knöpfe"].size() == 1 ? "antwort OK" : "antwort Ja"
                 : b->bereit_name() == "Kategorie_Wahl" ? "wähle Kategorie_Wahl.Liste 0"
                                                        : "klick " + b->bereit_name() + ".Ok");
        ASSERT_EQ(b->bereit(), "schleife");
        ASSERT_EQ(b->fenster("Tonkartei")["aktiv"], true);
    }
    int Lieder() { return std::stoi(b->text("Tonkartei.Liste_Anzahl")); }
    bool gesagt(const std::string& wort) const {
        return std::any_of(Ablauf.begin(), Ablauf.end(),
                           [&](const std::string& zeile) { return zeile.find(wort) != std::string::npos; });
    }
};

// Whichever operation fails while songs come in: each song's sound is still there, the old songs are as they were, the new
// numbers have no gap, what did not come was told of, and re-reading brings records and files together.
TEST_F(Hinzufügen, verliert_nichts) {
    struct Weg {
        const char* name;
        bool bewegen, fremdes_Laufwerk, andere_Datenbank;
    };
    const std::vector<std::pair<const char*, int>> vorgänge{{"kopieren", 3}, {"umbenennen", 4}, {"löschen", 4},
                                                            {"öffnen", 4},   {"lesen", 7},      {"anlegen", 1}};
    for (const Weg& weg : std::initializer_list<Weg>{{"kopieren", false, false, false},
                                                     {"bewegen", true, false, false},
                                                     {"über Laufwerke bewegen", true, true, false},
                                                     {"andere Datenbank", false, false, true}}) {
        lege(2);
        starte(false);
        if (weg.fremdes_Laufwerk) hand("laufwerk " + ordner.pfad("quelle"));
        int alte = 2, gestört = 0;
        for (const auto& [vorgang, anzahl] : vorgänge)
            for (int n = 1; n <= anzahl && !HasFailure(); ++n) {
                SCOPED_TRACE(std::string(weg.name) + ": " + vorgang + " " + std::to_string(n));
                std::filesystem::remove_all(ordner.pfad("quelle"));
                ordner.ordner("quelle");
                // New songs each time, so that none is taken for one that is there.
                const int erstes = alte * 10 + 100;
                Sammlung s;
                s.Lieder.clear();
                std::vector<std::string> pfade;
                for (int k = 0; k < 3; ++k) {
                    const int lied = erstes + k;
                    s.Lieder.push_back({"A" + std::to_string(lied), "T" + std::to_string(lied), 0, 2});
                    pfade.push_back(ordner.datei("quelle/0000000" + std::to_string(k + 1) + ".MP3",
                                                 std::string(static_cast<std::size_t>(1024 * alte), 'l') + bytes(lied)));
                }
                if (weg.andere_Datenbank) {
                    ordner.datei("quelle/MP3_Info.MDB", s.bytes());
                    andere("quelle");
                    hand("klick DB_add_start_Kategorien.Ok");
                } else {
                    Verzeichnis("quelle");
                    if (weg.bewegen) hand("klick neue_Lieder_Liste.add_Option(2)");
                }
                ASSERT_EQ(b->bereit_name(), "neue_Lieder_Liste");
                geschehen();
                hand(std::string("störung ") + vorgang + " " + std::to_string(n));
                hand("klick neue_Lieder_Liste.Ok");
                durchziehen();
                hand(std::string("störung ") + vorgang + " 1000000");
                hände({"klick Tonkartei.Lieder_Namen_einlesen", "antwort Ja"});
                const int neue = Lieder() - alte;
                const std::string gezählt = neue == 1 ? "1 neues Lied" : std::to_string(neue) + " neue Lieder";
                EXPECT_TRUE(neue == 0 || weg.andere_Datenbank ||
                            gesagt("Es wurde" + std::string(neue == 1 ? " " : "n ") + gezählt));
                EXPECT_FALSE(ordner.da(datei(alte + neue + 1)));
                for (int k = 0, nr = alte; k < 3; ++k) {
                    const std::string ton = bytes(erstes + k),
                                      quelle = Testordner::inhalt_von(pfade[static_cast<std::size_t>(k)]);
                    const bool gekommen = nr < alte + neue && ordner.inhalt(datei(nr + 1)).ends_with(ton);
                    if (gekommen) ++nr;
                    EXPECT_TRUE(gekommen || quelle.ends_with(ton)) << k;
                    EXPECT_TRUE(gekommen || gesagt(pfade[static_cast<std::size_t>(k)] + "\n\naufgetreten!")) << k;
                    EXPECT_TRUE(weg.bewegen || quelle.ends_with(ton)) << k;
                    const auto zeilen = b->zeilen("Tonkartei.Liste");
                    const std::string name = std::to_string(erstes + k);
                    EXPECT_EQ(std::count(zeilen.begin(), zeilen.end(), "A" + name + " - T" + name), gekommen ? 1 : 0);
                }
                for (int k = 1; k <= 2; ++k) EXPECT_EQ(ordner.inhalt(datei(k)), bytes(k));
                if (neue < 3) ++gestört;
                alte += neue;
            }
        EXPECT_GE(gestört, 3) << weg.name;  // or nothing was tried at all
    }
}

TEST_F(Hinzufügen, was_nach_dem_Suchen_geschah) {
    const struct {
        const char* name;
        std::function<void(const std::string&)> tun;
    } fälle[] = {
        {"weg", [](const std::string& pfad) { std::filesystem::remove(pfad); }},
        {"leer", [](const std::string& pfad) { std::ofstream{pfad}; }},
        {"ein Ordner",
         [](const std::string& pfad) { std::filesystem::remove(pfad), std::filesystem::create_directory(pfad); }},
        {"alles weg",
         [](const std::string& pfad) { std::filesystem::remove_all(std::filesystem::path(pfad).parent_path()); }},
    };
    for (const auto& fall : fälle)
        for (const bool bewegen : {false, true}) {
            SCOPED_TRACE(fall.name);
            lege(1);
            ordner.ordner("quelle");
            for (const int n : {5, 6, 7}) ordner.datei("quelle/" + std::to_string(n) + ".mp3", bytes(n));
            starte(false);
            Verzeichnis("quelle");
            if (bewegen) hand("klick neue_Lieder_Liste.add_Option(2)");
            fall.tun(ordner.pfad("quelle/6.mp3"));
            hände({"klick neue_Lieder_Liste.MP3_Tags_lesen", "klick neue_Lieder_Liste.Ok"});
            durchziehen();
            EXPECT_EQ(stand(), fall.name == std::string("alles weg") ? "1" : "1 5 7");
            std::filesystem::remove_all(ordner.pfad("quelle"));
        }
}

// Lists that somebody made to do harm, or that never were lists: read in seconds, and not into the memory.
TEST_F(Hinzufügen, schlimme_Playlisten) {
    constexpr std::size_t hundert_MB = 100'000'000;
    const std::string lied = ordner.datei("lied.mp3", bytes(9));
    const struct {
        const char* name;
        std::string stück;
        std::size_t mal;
        int gefunden;
    } fälle[] = {
        {"Namen, die es nicht gibt", "Some Band - A song that is not here.mp3\r\n", hundert_MB / 41, 1},
        {"eine Zeile ohne Ende", std::string(1000, 'x'), hundert_MB / 1000, 0},
        {"lange Zeilen", std::string(1'000'000, 'x') + "\r\n", 10, 1},
        {"leere Zeilen", "\r\n", 10'000'000, 1},
        {"Nullbytes", std::string(1000, '\0') + "\n" + lied + std::string("\0\n", 2), 10'000, 1},
        {"Kommas und Blanks", ", ,  ,", 1'000'000, 1},
        {"zu viele", "lied.mp3\n", 5000, 5001},
    };
    for (const auto& fall : fälle) {
        SCOPED_TRACE(fall.name);
        lege(1);
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
        starte(false);
        hände({"klick Tonkartei.Lieder_hinzufügen_Playlist", "pfad " + ordner.pfad("liste.m3u")});
        if (fall.gefunden > 5000) {
            EXPECT_EQ(geschehen().back(), "Laufzeitfehler|9");
            EXPECT_EQ(b->Ende_abwarten(), 1);
        } else if (fall.gefunden == 0) {
            EXPECT_EQ(geschehen().back(), "Fehler|Es wurden keine Lieder zum hinzufügen gefunden!|i");
        } else {
            EXPECT_EQ(b->zeilen("neue_Lieder_Liste.gefundene_Lieder"), Zeilen{"lied.mp3"});
        }
        b.reset();
    }
    // Of the largest process so far, in KByte; the sanitizers keep freed memory for themselves.
    rusage gebraucht{};
    ASSERT_EQ(getrusage(RUSAGE_CHILDREN, &gebraucht), 0);
    EXPECT_TRUE(gebraucht.ru_maxrss < 200'000 || std::getenv("ASAN_OPTIONS") != nullptr) << gebraucht.ru_maxrss;
}

TEST_F(Hinzufügen, mehr_Dateien_als_Lieder_Platz_haben) {
    lege(1);
    ordner.ordner("quelle");
    const std::string eine = ordner.datei("eine", "x");
    for (int n = 1; n <= 5001; ++n)
        std::filesystem::create_hard_link(eine, ordner.pfad("quelle/" + std::to_string(n) + ".mp3"));
    starte(false);
    Verzeichnis("quelle");
    EXPECT_EQ(b->ereignis("laufzeitfehler")["nummer"], 9);
    EXPECT_EQ(b->Ende_abwarten(), 1);
    EXPECT_EQ(ordner.inhalt(datei(1)), bytes(1));
}

}  // namespace
}  // namespace tonkartei
