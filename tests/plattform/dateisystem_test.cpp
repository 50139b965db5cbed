#include "plattform/linux/dateisystem_linux.hpp"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <functional>

#include "plattform/hilfen.hpp"
#include "plattform/offene_datei.hpp"
#include "testordner.hpp"

namespace tonkartei {
namespace {

class DateisystemTest : public testing::Test {
protected:
    Testordner ordner;
    Dateisystem_Linux dateien;

    std::string lies(const Text& pfad) {
        Offene_Datei datei(dateien, pfad, Dateimodus::lesen);
        std::string bytes(static_cast<std::size_t>(datei.Länge()), '\0');
        bytes.resize(datei.lesen(0, bytes));
        return bytes;
    }
    void schreib(const Text& pfad, std::string_view bytes) {
        Offene_Datei(dateien, pfad, Dateimodus::schreiben).schreiben(0, bytes);
    }
};

TEST_F(DateisystemTest, FehlerNachZahlen) {
    ordner.datei("da", "x");
    ordner.datei("zweite", "y");
    ordner.ordner("sub");
    ASSERT_EQ(::mkfifo(ordner.pfad("fifo").c_str(), 0600), 0);
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
        {"fifo", öffnen(p("fifo"), Modus::lesen), 75},
        {"fifo, writing", öffnen(p("fifo"), Modus::schreiben), 75},
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
        {"copy into a fifo", [&] { dateien.kopieren(p("da"), p("fifo")); }, 75},
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
    ASSERT_EQ(::link(pfad.c_str(), zweiter.c_str()), 0);

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
        if (!da) ::unlink(ordner.pfad("Ärger.mp3").c_str());
        EXPECT_EQ(dateien.Datei_da(ordner.pfad("ÄRGER.MP3")), da);
    }
    // Bytes that are not UTF-8 stand for themselves.
    ordner.datei("K\xF6ln.mp3", "k");
    EXPECT_TRUE(dateien.Datei_da(ordner.pfad("k\xF6LN.MP3")));
    EXPECT_FALSE(dateien.Datei_da(ordner.pfad("k\xD6LN.MP3")));
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

// Where both spellings are there the exact one is meant, and the other is never touched; of several others the first in byte
// order. What is missing in the exact folder is not sought in the other.
TEST_F(DateisystemTest, ZweiSchreibweisenNebeneinander) {
    for (const char* name : {"a/x", "A/y", "a/lied", "a/LIED"}) ordner.datei(name, (ordner.ordner(Text(name, 1)), name));
    EXPECT_EQ(lies(ordner.pfad("a/Lied")), "a/LIED");
    EXPECT_FALSE(dateien.Datei_da(ordner.pfad("a/Y")));
    EXPECT_EQ(lies(ordner.pfad("A/Y")), "A/y");
    const Text klein = ordner.pfad("a/lied"), groß = ordner.pfad("a/LIED");
    EXPECT_EQ(Fehler_von([&] { dateien.umbenennen(klein, groß); }), 58);
    EXPECT_EQ(Fehler_von([&] { dateien.umbenennen(klein, ordner.pfad("a/Lied")); }), 58);
    schreib(klein, "1");
    dateien.kopieren(ordner.pfad("a/x"), klein);
    dateien.ersetzen(ordner.pfad("A/Y"), klein);
    dateien.löschen(klein);
    EXPECT_EQ(ordner.inhalt("a/LIED"), "a/LIED");
    EXPECT_FALSE(ordner.da("a/lied"));
}

TEST_F(DateisystemTest, KopieMitZeitUndRechten) {
    std::string inhalt(3'000'000, 'm');
    inhalt[2'999'999] = '!';
    const Text quelle = ordner.datei("quelle", inhalt);
    const struct timespec zeiten[2] = {{1'000'000'000, 1}, {1'234'567'890, 123'456'789}};
    ASSERT_EQ(::utimensat(AT_FDCWD, quelle.c_str(), zeiten, 0), 0);
    ::chmod(quelle.c_str(), 0444);
    ordner.datei("ziel", std::string(4'000'000, 'z'));
    dateien.kopieren(quelle, ordner.pfad("ziel"));
    EXPECT_TRUE(ordner.inhalt("ziel") == inhalt);
    dateien.kopieren(quelle, ordner.pfad("neu"));
    struct stat neu {};
    ::stat(ordner.pfad("neu").c_str(), &neu);
    EXPECT_EQ(neu.st_mtim.tv_sec, 1'234'567'890);
    EXPECT_EQ(neu.st_mtim.tv_nsec, 123'456'789);
    EXPECT_EQ(neu.st_mode & 0600U, 0600U) << "a copy of a write-protected file belongs to the user";
    dateien.kopieren(ordner.datei("leer"), ordner.pfad("ziel"));
    EXPECT_EQ(ordner.inhalt("ziel"), "");

    const Voller_Datenträger voll(1'000'000);
    EXPECT_NE(Fehler_von([&] { dateien.kopieren(quelle, ordner.pfad("voll")); }), 0);
    EXPECT_FALSE(ordner.da("voll")) << "nothing that passes for the whole";
}

TEST_F(DateisystemTest, gleiche_Datei) {
    const Text pfad = ordner.datei("eine", "1");
    ordner.datei("andere", "1");
    std::filesystem::create_symlink(pfad, ordner.pfad("verweis"));
    for (const char* name : {"eine", "EINE", "./eine", "verweis"})
        EXPECT_TRUE(dateien.gleiche_Datei(pfad, ordner.pfad(name))) << name;
    for (const char* name : {"andere", "fehlt", ""}) EXPECT_FALSE(dateien.gleiche_Datei(pfad, ordner.pfad(name))) << name;
}

TEST_F(DateisystemTest, AnderesLaufwerk) {
    if (!anderes_Laufwerk_da(ordner)) GTEST_SKIP() << "only one volume";
    EXPECT_EQ(Fehler_von([&] { dateien.umbenennen(ordner.datei("lied", "abc"), "/dev/shm/tonkartei-lied"); }), 74);
    EXPECT_FALSE(dateien.gleiches_Laufwerk(ordner.pfad("noch/nicht/da"), "/DEV/shm/x"));
    EXPECT_TRUE(dateien.gleiches_Laufwerk(ordner.pfad("noch/nicht/da"), ordner.pfad()));
}

TEST_F(DateisystemTest, AuflistenNachBytesMitVerweisen) {
    for (const char* name : {"b", "B", "\xFF", "é"}) ordner.datei(name);
    ordner.ordner("sub");
    std::filesystem::create_symlink("sub", ordner.pfad("link"));
    std::filesystem::create_symlink("nirgends", ordner.pfad("tot"));
    Text namen;
    for (const auto& eintrag : dateien.auflisten(ordner.pfad()))
        namen += eintrag.Name + (eintrag.ist_Ordner ? "/" : "") + (eintrag.ist_Verweis ? "@" : "") + " ";
    EXPECT_EQ(namen, "B b link/@ sub/ tot@ é \xFF ");
    // The link goes, what it points to stays.
    dateien.löschen(ordner.pfad("link"));
    dateien.löschen(ordner.pfad("tot"));
    EXPECT_TRUE(ordner.da("sub"));
    EXPECT_FALSE(ordner.da("link"));
}

}  // namespace
}  // namespace tonkartei
