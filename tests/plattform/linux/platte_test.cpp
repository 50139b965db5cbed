// What only this system's disks know: bytes for names, two spellings side by side, links, devices, and being full.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fcntl.h>

#include "plattform/hilfen.hpp"
#include "plattform/kanaele.hpp"
#include "plattform/linux/platte.hpp"
#include "plattform/plattenbuehne.hpp"

namespace tonkartei {
namespace {

TEST_F(DateisystemTest, GeräteUndBytes) {
    ASSERT_EQ(::mkfifo(ordner.pfad("fifo").c_str(), 0600), 0);
    for (const auto modus : {Dateimodus::lesen, Dateimodus::schreiben})
        EXPECT_EQ(Fehler_von([&] { dateien.öffnen(ordner.pfad("fifo"), modus); }), 75);
    EXPECT_EQ(Fehler_von([&] { dateien.kopieren(ordner.datei("da"), ordner.pfad("fifo")); }), 75);
    // Bytes that are not UTF-8 stand for themselves.
    ordner.datei("K\xF6ln.mp3", "k");
    EXPECT_TRUE(dateien.Datei_da(ordner.pfad("k\xF6LN.MP3")));
    EXPECT_FALSE(dateien.Datei_da(ordner.pfad("k\xD6LN.MP3")));
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

TEST_F(DateisystemTest, KopieMitFeinerZeitUndRechten) {
    const Text quelle = ordner.datei("quelle", std::string(3'000'000, 'm'));
    const struct timespec zeiten[2] = {{1'000'000'000, 1}, {1'234'567'890, 123'456'789}};
    ASSERT_EQ(::utimensat(AT_FDCWD, quelle.c_str(), zeiten, 0), 0);
    ::chmod(quelle.c_str(), 0444);
    dateien.kopieren(quelle, ordner.pfad("neu"));
    struct stat neu {};
    ::stat(ordner.pfad("neu").c_str(), &neu);
    EXPECT_EQ(neu.st_mtim.tv_sec, 1'234'567'890);
    EXPECT_EQ(neu.st_mtim.tv_nsec, 123'456'789);
    EXPECT_EQ(neu.st_mode & 0600U, 0600U) << "a copy of a write-protected file belongs to the user";
    const Voller_Datenträger voll(1'000'000);
    EXPECT_NE(Fehler_von([&] { dateien.kopieren(quelle, ordner.pfad("voll")); }), 0);
    EXPECT_FALSE(ordner.da("voll")) << "nothing that passes for the whole";
}

TEST_F(DateisystemTest, VerweisIstSeineDatei) {
    const Text pfad = ordner.datei("eine", "1");
    std::filesystem::create_symlink(pfad, ordner.pfad("verweis"));
    EXPECT_TRUE(dateien.gleiche_Datei(pfad, ordner.pfad("verweis")));
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

// What cannot be written keeps its channel and its file, whether it shows while writing or while closing.
TEST_F(DateisystemTest, VollerDatenträgerLässtDenKanalOffen) {
    Kanäle kanäle(dateien);
    const Text pfad = ordner.pfad("neu");
    {
        const Voller_Datenträger voll(100'000);
        const int nr = kanäle.öffnen_zum_Schreiben(pfad);
        EXPECT_EQ(Fehler_von([&] {
                      for (int i = 0; i < 200; ++i) kanäle.schreibe_Zeile(nr, Text(1000, 'z'));
                  }),
                  61);
        EXPECT_EQ(Fehler_von([&] { kanäle.schließen(nr); }), 61);
        EXPECT_TRUE(kanäle.offen(nr));
        EXPECT_EQ(Fehler_von([&] { kanäle.öffnen_zum_Schreiben(pfad); }), 55);
        EXPECT_EQ(kanäle.öffnen_zum_Schreiben(ordner.pfad("andere")), 2);
        kanäle.aufgeben(nr);
        EXPECT_FALSE(kanäle.offen(nr));
    }
    EXPECT_EQ(std::filesystem::file_size(pfad), 100'000U) << "giving up writes nothing more";
    dateien.umbenennen(pfad, ordner.pfad("x"));
}

}  // namespace
}  // namespace tonkartei
