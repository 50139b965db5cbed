#include <gtest/gtest.h>

#include <chrono>
#include <functional>

#include "plattform/hilfen.hpp"
#include "plattform/plattenbuehne.hpp"

namespace tonkartei {
namespace {

TEST_F(DateisystemTest, FehlerNachZahlen) {
    ordner.datei("da", "x");
    ordner.datei("zweite", "y");
    ordner.ordner("sub");
    using Modus = Dateimodus;
    const auto p = [&](const char* name) { return ordner.pfad(name); };
    const auto öffnen = [&](const Text& pfad, Modus modus) { return [=, this] { dateien.öffnen(pfad, modus); }; };
    const struct {
        const char* was;
        std::function<void()> arbeit;
        int nummer;
    } fälle[] = {
        {"missing file", öffnen(p("fehlt"), Modus::lesen), 53},
        {"missing folder", öffnen(p("kein/fehlt"), Modus::lesen), 76},
        {"file as folder", öffnen(p("da/x"), Modus::lesen), 76},
        {"folder", öffnen(p("sub"), Modus::lesen), 75},
        {"zero byte", öffnen(p("da") + Text("\0.mp3", 5), Modus::lesen), 53},
        {"name too long", öffnen(p(std::string(300, 'x').c_str()), Modus::schreiben), 75},
        {"rename of nothing", [&] { dateien.umbenennen(p("fehlt"), p("neu")); }, 53},
        {"rename onto a file", [&] { dateien.umbenennen(p("da"), p("ZWEITE")); }, 58},
        {"rename onto a folder", [&] { dateien.umbenennen(p("da"), p("sub/")); }, 58},
        {"rename into no folder", [&] { dateien.umbenennen(p("da"), p("kein/da")); }, 76},
        {"delete of nothing", [&] { dateien.löschen(p("fehlt")); }, 53},
        {"delete of a folder", [&] { dateien.löschen(p("sub")); }, 53},
        {"folder exists", [&] { dateien.Ordner_anlegen(p("sub")); }, 75},
        {"folder in no folder", [&] { dateien.Ordner_anlegen(p("kein/neu")); }, 76},
        {"list of a file", [&] { dateien.auflisten(p("da")); }, 76},
        {"copy onto itself", [&] { dateien.kopieren(p("da"), p("DA")); }, 75},
        {"copy of nothing", [&] { dateien.kopieren(p("fehlt"), p("neu")); }, 53},
        {"current folder", [&] { dateien.aktuellen_Ordner_setzen(p("kein")); }, 76},
    };
    for (const auto& fall : fälle) EXPECT_EQ(Fehler_von(fall.arbeit), fall.nummer) << fall.was;
    EXPECT_EQ(ordner.inhalt("da"), "x");
    EXPECT_EQ(ordner.inhalt("zweite"), "y");
    EXPECT_FALSE(ordner.da("neu"));
    EXPECT_EQ(dateien.Dateilänge(p("sub")), -1);
}

// What is open here is refused under every name of the file, and is free again once it is closed.
TEST_F(DateisystemTest, OffeneDateien) {
    const Text pfad = ordner.datei("lied", "alt");
    const Text zweiter = ordner.pfad("zweiter");
    std::filesystem::create_hard_link(ordner.weg("lied"), ordner.weg("zweiter"));

    const auto lesend = dateien.öffnen(pfad, Dateimodus::lesen);
    EXPECT_NE(lesend, dateien.öffnen(zweiter, Dateimodus::lesen));
    dateien.schließen(lesend);
    EXPECT_EQ(Fehler_von([&] { dateien.öffnen(pfad, Dateimodus::schreiben); }), 55);
    EXPECT_EQ(Fehler_von([&] { dateien.öffnen(pfad, Dateimodus::ändern); }), 55);
    EXPECT_EQ(Fehler_von([&] { dateien.umbenennen(zweiter, ordner.pfad("x")); }), 75);
    EXPECT_EQ(Fehler_von([&] { dateien.ersetzen(ordner.datei("quelle", "q"), pfad); }), 75);
    EXPECT_EQ(Fehler_von([&] { dateien.löschen(zweiter); }), 70);
    EXPECT_EQ(Fehler_von([&] { dateien.kopieren(ordner.pfad("quelle"), pfad); }), 55);
    EXPECT_EQ(ordner.inhalt("lied"), "alt");
    dateien.schließen(lesend + 1);

    const auto schreibend = dateien.öffnen(zweiter, Dateimodus::schreiben);
    EXPECT_EQ(schreibend, 1) << "a handle given back is used again";
    EXPECT_EQ(Fehler_von([&] { dateien.öffnen(pfad, Dateimodus::lesen); }), 55);
    EXPECT_EQ(Fehler_von([&] { dateien.kopieren(pfad, ordner.pfad("kopie")); }), 55);
    dateien.schließen(schreibend);
    EXPECT_EQ(Fehler_von([&] { dateien.lesen(schreibend, 0, {}); }), 52);
    EXPECT_NO_THROW(dateien.löschen(zweiter));
    EXPECT_NO_THROW(dateien.löschen(pfad));
}

TEST_F(DateisystemTest, SchreibweiseDesNamens) {
    // Written at once after a miss, faster than the clock of the file system ticks: seen all the same.
    for (const bool da : {false, true, false}) {
        if (da) ordner.datei("Ärger.mp3", "1");
        if (!da) std::filesystem::remove(ordner.weg("Ärger.mp3"));
        EXPECT_EQ(dateien.Datei_da(ordner.pfad("ÄRGER.MP3")), da);
    }
}

// Every call finds every name of a path, and leaves the disk's spelling as it is.
TEST_F(DateisystemTest, GanzePfadeInAndererSchreibweise) {
    ordner.ordner("Musik/Sammlung");
    const Text falsch = ordner.pfad("mUSIK/SAMMLUNG/"), richtig = "Musik/Sammlung/";
    EXPECT_TRUE(dateien.Ordner_da(falsch));
    schreib(falsch + "info.mdb", "info");
    schreib(falsch + "Info.MDB", "neu");
    EXPECT_EQ(ordner.inhalt(richtig + "info.mdb"), "neu");
    EXPECT_EQ(lies(falsch + "INFO.mdb"), "neu");
    EXPECT_EQ(dateien.Dateilänge(falsch + "INFO.mdb"), 3);
    EXPECT_TRUE(dateien.gleiche_Datei(falsch + "Info.mdb", ordner.pfad(richtig + "info.mdb")));
    dateien.umbenennen(falsch + "INFO.mdb", falsch + "bak.mdb");
    dateien.umbenennen(falsch + "bak.MDB", falsch + "BAK.mdb");
    dateien.kopieren(falsch + "bak.MDB", falsch + "kopie");
    dateien.ersetzen(falsch + "KOPIE", falsch + "bak.mdb");
    dateien.Ordner_anlegen(falsch + "sub");
    dateien.Ordner_löschen(falsch + "Sub");
    EXPECT_EQ(Fehler_von([&] { dateien.Ordner_anlegen(ordner.pfad("MUSIK/sammlung")); }), 75);
    EXPECT_EQ(dateien.auflisten(falsch).size(), 1U);
    EXPECT_EQ(ordner.inhalt(richtig + "BAK.mdb"), "neu");
    EXPECT_EQ(Fehler_von([&] { schreib(ordner.pfad("MUSIK/andere/x"), ""); }), 76);
    EXPECT_TRUE(dateien.freie_Bytes(falsch).has_value());
    dateien.aktuellen_Ordner_setzen(falsch);
    EXPECT_EQ(dateien.aktueller_Ordner(), ordner.pfad(richtig));
    dateien.umbenennen("bak.MDB", "../bar");
    EXPECT_EQ(ordner.inhalt("Musik/bar"), "neu");
    dateien.aktuellen_Ordner_setzen("..");
    dateien.löschen("BAR");
    EXPECT_FALSE(ordner.da("Musik/bar"));
}

TEST_F(DateisystemTest, KopieMitZeit) {
    std::string inhalt(3'000'000, 'm');
    inhalt[2'999'999] = '!';
    const Text quelle = ordner.datei("quelle", inhalt);
    const auto damals = std::filesystem::last_write_time(ordner.weg("quelle")) - std::chrono::hours(50000);
    std::filesystem::last_write_time(ordner.weg("quelle"), damals);
    ordner.datei("ziel", std::string(4'000'000, 'z'));
    for (const char* ziel : {"ziel", "neu"}) {
        dateien.kopieren(quelle, ordner.pfad(ziel));
        EXPECT_TRUE(ordner.inhalt(ziel) == inhalt);
        EXPECT_EQ(std::filesystem::last_write_time(ordner.weg(ziel)), damals);
    }
    dateien.kopieren(ordner.datei("leer"), ordner.pfad("ziel"));
    EXPECT_EQ(ordner.inhalt("ziel"), "");
}

TEST_F(DateisystemTest, gleiche_Datei) {
    const Text pfad = ordner.datei("eine", "1");
    ordner.datei("andere", "1");
    std::filesystem::create_hard_link(ordner.weg("eine"), ordner.weg("zweite"));
    for (const char* name : {"eine", "EINE", "./eine", "zweite"})
        EXPECT_TRUE(dateien.gleiche_Datei(pfad, ordner.pfad(name))) << name;
    for (const char* name : {"andere", "fehlt", ""}) EXPECT_FALSE(dateien.gleiche_Datei(pfad, ordner.pfad(name))) << name;
}

TEST_F(DateisystemTest, Auflisten) {
    for (const char* name : {"b", "Z", "é"}) ordner.datei(name);
    ordner.ordner("sub");
    Text namen;
    for (const auto& eintrag : dateien.auflisten(ordner.pfad())) namen += eintrag.Name + (eintrag.ist_Ordner ? "/ " : " ");
    EXPECT_EQ(namen, "Z b sub/ é ");
    EXPECT_TRUE(dateien.auflisten(ordner.pfad("sub")).empty());
}

}  // namespace
}  // namespace tonkartei
