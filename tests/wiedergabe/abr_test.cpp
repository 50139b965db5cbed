// The file of aborted listens.
#include <gtest/gtest.h>

#include "wiedergabe/buehne.hpp"

namespace tonkartei {
namespace {

constexpr const char* Datei = "MP3_Info.ABR";
constexpr const char* Kopie = "anderswo/MP3_Bak.ABR";

TEST(ABR, lesen) {
    Bühne b;
    b.Ordner.datei(Datei,
                   "1204: 183\r\n"
                   "1204: VoLL \r\n"
                   "  12: 183\r\n"  // the columns count behind the blanks
                   "  12: voll\r\n"
                   "\r\n"
                   "   7: 0\r\n"  // then too short
                   "   0: voll\r\n"
                   "abcd: voll\r\n"
                   "1000: 5,  2000: 6\r\n"
                   "3000:\xFC  7 s");
    const int kanal = b.Kanäle_.öffnen_zum_Lesen(b.Ordner.pfad(Datei));
    Text gelesen;
    while (const auto satz = lese_ABR_Satz(b.Kanäle_, kanal))
        gelesen +=
            Zahltext(satz->Nr) + "=" + (satz->voll() ? "voll" : Zahltext(static_cast<long long>(satz->Sekunden()))) + " ";
    EXPECT_EQ(gelesen, "1204=183 1204=voll 12=3 12=0 1000=5 2000=6 3000=7 ");
}

TEST(ABR, umnummerieren) {
    const struct {
        const char* was;
        Long alt, neu;
        const char *vorher, *nachher;
    } fälle[] = {
        {"the removed song goes, the last one takes its number", 5000, 7, "0007: voll\r\n5000: voll\r\n", "   7: voll\r\n"},
        {"others stay, in any spelling", 5000, 7, "1204: VOLL\r\n0012:  voll\r\n", "1204: voll\r\n  12: voll\r\n"},
        {"seconds are lost, 0 and words without a number are not", 9, 1,
         "1204: 183\r\n1204: 0\r\n1204: halb\r\n1204: 0.4\r\n", "1204: 0\r\n1204: 0\r\n"},
        {"the front of a short number's record is gone", 9, 1, "  12: voll\r\n  12: 180\r\n", "  12: 0\r\n  12: 0\r\n"},
        {"0 of the removed song", 9, 1204, "1204: 0\r\n", ""},
        {"blanks at the end are no record", 9, 1, "1204: voll\r\n \r\n  ", "1204: voll\r\n"},
        {"commas end records", 1300, 1200, "1204: voll,1300: voll,1200: voll", "1204: voll\r\n1200: voll\r\n"},
    };
    for (const auto& fall : fälle) {
        Bühne b;
        b.Ordner.datei(Datei, fall.vorher);
        b.Spiel.ABR.ABR_umnummerieren(fall.alt, fall.neu);
        EXPECT_EQ(b.Ordner.inhalt(Datei), fall.nachher) << fall.was;
        EXPECT_FALSE(b.Ordner.da("MP3_Bak.ABR")) << fall.was;
    }
}

TEST(ABR, nach_einem_Fehlschlag_steht_noch_eine_ganze_Datei) {
    const Text inhalt = "1204: voll\r\n5000: voll\r\n";
    Bühne b;
    b.Spiel.ABR.ABR_umnummerieren(5000, 7);
    EXPECT_FALSE(b.Ordner.da(Datei)) << "without a file nothing happens";
    // The copy lies in the current folder.
    b.Dateien.aktuellen_Ordner_setzen(b.Ordner.ordner("anderswo"));
    b.Ordner.datei(Datei, inhalt);
    b.Dateien.umbenennen_scheitert = true;
    b.Spiel.ABR.ABR_umnummerieren(5000, 7);
    EXPECT_EQ(b.Ordner.inhalt(Datei), inhalt);
    b.Dateien.umbenennen_scheitert = false;
    b.Dateien.schreiben_scheitert = true;
    b.Spiel.ABR.ABR_umnummerieren(5000, 7);
    EXPECT_EQ(b.Ordner.inhalt(Kopie), inhalt);
    EXPECT_TRUE(b.Ansicht.Meldungen.empty());
    EXPECT_FALSE(b.Kanäle_.offen(1) || b.Kanäle_.offen(2));
    // The next call finds that copy in its way, reads it and mends the file.
    b.Dateien.schreiben_scheitert = false;
    b.Spiel.ABR.ABR_umnummerieren(5000, 7);
    EXPECT_EQ(b.Ordner.inhalt(Datei), "1204: voll\r\n   7: voll\r\n");
    EXPECT_FALSE(b.Ordner.da(Kopie));
}

}  // namespace
}  // namespace tonkartei
