#include <gtest/gtest.h>

#include "mp3/bausteine.hpp"
#include "mp3/mp3_taghead.hpp"
#include "mp3/speicher_dateisystem.hpp"

namespace tonkartei {
namespace {

TEST(Lied_Daten, gleich_den_einzelnen_Aufrufen) {
    Speicher_Dateisystem dateien;
    auto& d = dateien.Dateien;
    d["voll"].Inhalt = Lied_Bytes(4'000'000 - 128, 1, 0xFFFB9064) + Tag_Bytes{.Titel = "T", .Artist = "A"}.Block();
    d["nur Tag"].Inhalt = Tag_Bytes{}.Block();
    d["nur Ton"].Inhalt = Lied_Bytes(1536, 1, 0xFFFB9064);
    d["leer"];
    d["über eine Stunde"] = {Lied_Bytes(300, 1, 0xFFFB1064), 20'000'000, false, false};
    d["gesperrt"] = {Lied_Bytes(2600, 1, 0xFFFB9064), 0, true, false};

    struct Fall {
        Text Datei, Titel, Artist;
        Long Größe;
        Zeit Länge;
    };
    const Text ohne(Titel_ohne_Tag);
    const Fall Fälle[] = {
        {"voll", "T", "A", 3906, Zeit_aus(0, 4, 10)},  // 3906.25 KByte
        {"nur Tag", "Titel", "Artist", 0, 0},
        {"nur Ton", ohne, "---", 2, Zeit_aus(0, 0, 0)},  // 1.5, to the even one
        {"leer", ohne, "---", 0, 0},
        {"über eine Stunde", ohne, "---", 19532, Zeit_aus(1, 23, 20)},
        {"gesperrt", ohne, "---", 3, 0},
        {"fehlt", ohne, "---", 0, 0},
    };
    for (const Fall& fall : Fälle) {
        MP3_TagHead mp3(dateien);
        const Lied_Daten daten = mp3.Lied_Daten_lesen(fall.Datei);
        EXPECT_EQ(daten.Titel, fall.Titel) << fall.Datei;
        EXPECT_EQ(daten.Artist, fall.Artist) << fall.Datei;
        EXPECT_EQ(daten.Größe, fall.Größe) << fall.Datei;
        EXPECT_DOUBLE_EQ(daten.Zeit, fall.Länge) << fall.Datei;
        EXPECT_EQ(mp3.MP3_Datei, fall.Datei);

        MP3_TagHead einzeln(dateien);
        Text Titel, Artist;
        einzeln.Lied_Tag_lesen(fall.Datei, Titel, Artist);
        EXPECT_EQ(Titel, daten.Titel);
        EXPECT_EQ(Artist, daten.Artist);
        EXPECT_EQ(einzeln.Lied_Größe_lesen(fall.Datei), daten.Größe);
        EXPECT_EQ(einzeln.Lied_Zeit_lesen(fall.Datei), daten.Zeit);
        EXPECT_EQ(einzeln.Kanal_Modus, mp3.Kanal_Modus);
        EXPECT_EQ(einzeln.Tag_Album, mp3.Tag_Album);
        EXPECT_EQ(dateien.offene(), 0U);
    }
}

TEST(Lied_Daten, wenige_Aufrufe) {
    Speicher_Dateisystem dateien;
    dateien.Dateien["a"].Inhalt = Lied_Bytes(90'000, 4000, 0xFFFB9064) + Tag_Bytes{}.Block();
    MP3_TagHead mp3(dateien);
    mp3.Lied_Daten_lesen("a");
    EXPECT_EQ(dateien.Öffnungen, 1);
    EXPECT_LE(dateien.Lesungen, 3);
}

TEST(Lied_Daten, Rechenfehler_kommen_durch_und_schließen) {
    Speicher_Dateisystem dateien;
    dateien.Dateien["riesig"] = {Lied_Bytes(300, 1, 0xFFFB9064), 300'000'000, false, false};
    dateien.Dateien["ohne Frames"].Inhalt = Xing_Lied_Bytes(300, 1, 0xFFFB9064, 0);
    MP3_TagHead mp3(dateien);
    const auto nummer = [&](const Text& datei) {
        try {
            mp3.Lied_Daten_lesen(datei);
            return 0;
        } catch (const Laufzeitfehler& fehler) {
            return fehler.Nummer();
        }
    };
    EXPECT_EQ(nummer("riesig"), Fehler_Überlauf);
    EXPECT_EQ(nummer("ohne Frames"), Fehler_Division);
    EXPECT_EQ(dateien.offene(), 0U);
}

}  // namespace
}  // namespace tonkartei
