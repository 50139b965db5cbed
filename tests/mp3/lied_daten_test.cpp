#include <gtest/gtest.h>

#include "mp3/bausteine.hpp"
#include "mp3/mp3_taghead.hpp"
#include "mp3/speicher_dateisystem.hpp"

namespace tonkartei {
namespace {

TEST(Lied_Daten, in_einem_Zug) {
    Speicher_Dateisystem dateien;
    auto& d = dateien.Dateien;
    d["voll"].Inhalt = Lied_Bytes(4'000'000 - 128, 1, 0xFFFB9064) + Tag_Bytes{.Titel = "T", .Artist = "A"}.Block();
    d["nur Tag"].Inhalt = Tag_Bytes{}.Block();
    d["nur Ton"].Inhalt = Lied_Bytes(1536, 1, 0xFFFB9064);
    d["leer"];
    d["über eine Stunde"] = {Lied_Bytes(300, 1, 0xFFFB1064), 20'000'000, false, false};
    d["gesperrt"] = {Lied_Bytes(2600, 1, 0xFFFB9064), 0, true, false};

    const Text ohne(Titel_ohne_Tag);
    const struct {
        Text Datei, Titel, Artist;
        Long Größe;
        Zeit Länge;
    } Fälle[] = {
        {"voll", "T", "A", 3906, Zeit_aus(0, 4, 10)},  // 3906.25 KByte
        {"nur Tag", "Titel", "Artist", 0, 0},
        {"nur Ton", ohne, "---", 2, Zeit_aus(0, 0, 0)},  // 1.5, to the even one
        {"leer", ohne, "---", 0, 0},
        {"über eine Stunde", ohne, "---", 19532, Zeit_aus(1, 23, 20)},
        {"gesperrt", ohne, "---", 3, 0},
        {"fehlt", ohne, "---", 0, 0},
    };
    for (const auto& fall : Fälle) {
        MP3_TagHead mp3(dateien);
        const Lied_Daten daten = mp3.Lied_Daten_lesen(fall.Datei);
        EXPECT_EQ(daten.Titel, fall.Titel) << fall.Datei;
        EXPECT_EQ(daten.Artist, fall.Artist) << fall.Datei;
        EXPECT_EQ(daten.Größe, fall.Größe) << fall.Datei;
        EXPECT_DOUBLE_EQ(daten.Zeit, fall.Länge) << fall.Datei;
        EXPECT_EQ(mp3.MP3_Datei, fall.Datei);
        EXPECT_EQ(MP3_TagHead(dateien).Lied_Zeit_lesen(fall.Datei), daten.Zeit) << "the same one by one";
        EXPECT_EQ(dateien.offene(), 0U);
    }
    dateien.Öffnungen = dateien.Lesungen = 0;
    MP3_TagHead(dateien).Lied_Daten_lesen("voll");
    EXPECT_EQ(dateien.Öffnungen, 1);
    EXPECT_LE(dateien.Lesungen, 3);
}

}  // namespace
}  // namespace tonkartei
