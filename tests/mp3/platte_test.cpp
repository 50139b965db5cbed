// On the real disk: what is no readable file, and a tag that is changed in place.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "mp3/bausteine.hpp"
#include "mp3/mp3_taghead.hpp"
#include "plattform/linux/dateisystem_linux.hpp"
#include "testordner.hpp"

namespace tonkartei {
namespace {

TEST(MP3_auf_der_Platte, was_keine_lesbare_Datei_ist) {
    const Testordner ordner;
    ordner.ordner("ordner.mp3");
    ASSERT_EQ(::mkfifo(ordner.pfad("fifo.mp3").c_str(), 0600), 0);
    ASSERT_EQ(::symlink("/dev/null", ordner.pfad("gerät.mp3").c_str()), 0);
    ASSERT_EQ(::symlink("nirgends", ordner.pfad("verweis.mp3").c_str()), 0);
    ASSERT_EQ(::chmod(ordner.datei("verboten.mp3", Tag_Bytes{}.Block()).c_str(), 0), 0);

    Dateisystem_Linux dateien;
    MP3_TagHead mp3(dateien);
    for (const char* name : {"ordner.mp3", "fifo.mp3", "gerät.mp3", "verweis.mp3", "fehlt.mp3", "verboten.mp3"}) {
        if (::geteuid() == 0 && name == std::string("verboten.mp3")) continue;  // nothing is forbidden to root
        mp3.MP3_Datei = ordner.pfad(name);
        EXPECT_FALSE(mp3.Datei_lesbar(mp3.MP3_Datei)) << name;
        EXPECT_FALSE(mp3.Tag_lesen()) << name;
        EXPECT_FALSE(mp3.Tag_schreiben()) << name;
        EXPECT_FALSE(mp3.MP3_Info_lesen()) << name;
        const Lied_Daten daten = mp3.Lied_Daten_lesen(mp3.MP3_Datei);
        EXPECT_EQ(daten.Artist, "---") << name;
        EXPECT_EQ(daten.Größe, 0) << name;
    }
    EXPECT_FALSE(mp3.Datei_lesbar(""));
}

TEST(MP3_auf_der_Platte, Tag_an_Ort_und_Stelle_geändert) {
    const Testordner ordner;
    const std::string ton = Lied_Bytes(5000, 1, 0xFFFB9064);
    const std::string pfad = ordner.datei("Kür \xFC.mp3", ton + Tag_Bytes{.Titel = "alt"}.Block());
    Dateisystem_Linux dateien;
    MP3_TagHead mp3(dateien);
    const Lied_Daten daten = mp3.Lied_Daten_lesen(pfad);
    EXPECT_EQ(daten.Titel, "alt");
    EXPECT_EQ(daten.Größe, 5);
    mp3.Tag_Titel = "Ä";
    ASSERT_TRUE(mp3.Tag_schreiben());
    EXPECT_EQ(Testordner::inhalt_von(pfad).substr(0, 5000), ton);
    EXPECT_EQ(Testordner::inhalt_von(pfad).substr(5000, 35), "TAG\xC4" + std::string(29, ' ') + "Ar");

    // The file counts as closed for everybody else: it can be opened for writing at once.
    const auto griff = dateien.öffnen(pfad, Dateimodus::ändern);
    EXPECT_FALSE(mp3.Tag_lesen()) << "while another writes it";
    dateien.schließen(griff);
    EXPECT_TRUE(mp3.Tag_lesen());
}

}  // namespace
}  // namespace tonkartei
