// The file of aborted listens.
#include <gtest/gtest.h>

#include "datenbank/abr_datei.hpp"
#include "probe/probehaus.hpp"

namespace tonkartei {
namespace {

constexpr const char* Datei = "MP3_Info.ABR";

struct ABR_Bühne : Probehaus {
    ABR_Datei ABR{modell, dateien, haus.kanäle};

    Text umnummeriert(const Text& vorher, Long alt, Long neu) {
        ordner.datei(Datei, vorher);
        ABR.ABR_umnummerieren(alt, neu);
        return ordner.inhalt(Datei);
    }
};

TEST(ABR, lesen) {
    ABR_Bühne b;
    b.ordner.datei(Datei,
                   "1204: 183\r\n1204: VoLL \r\n  12: 183\r\n   7: voll\r\n\r\n7: 0\r\n   0: voll\r\nabcd: voll\r\n1000: "
                   "5,2000: 6\r\n3000:\xFC  7 s");
    const int kanal = b.haus.kanäle.öffnen_zum_Lesen(b.ordner.pfad(Datei));
    Text gelesen;
    while (const auto satz = lese_ABR_Satz(b.haus.kanäle, kanal))
        gelesen +=
            Zahltext(satz->Nr) + "=" + (satz->voll() ? "voll" : Zahltext(static_cast<long long>(satz->Sekunden()))) + " ";
    EXPECT_EQ(gelesen, "1204=183 1204=voll 12=183 7=voll 1000=5 2000=6 3000=7 ");
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
        {"0 of the removed song", 9, 1204, "1204: 0\r\n", ""},
        {"blanks at the end are no record", 9, 1, "1204: voll\r\n \r\n  ", "1204: voll\r\n"},
        {"commas end records", 1300, 1200, "1204: voll,1300: voll,1200: voll", "1204: voll\r\n1200: voll\r\n"},
    };
    for (const auto& fall : fälle) {
        ABR_Bühne b;
        EXPECT_EQ(b.umnummeriert(fall.vorher, fall.alt, fall.neu), fall.nachher) << fall.was;
        EXPECT_FALSE(b.ordner.da("MP3_Bak.ABR")) << fall.was;
    }
}

TEST(ABR, nach_einem_Fehlschlag_steht_noch_eine_ganze_Datei) {
    const Text inhalt = "1204: voll\r\n5000: voll\r\n", Kopie = "anderswo/MP3_Bak.ABR";
    ABR_Bühne b;
    b.ABR.ABR_umnummerieren(5000, 7);
    EXPECT_FALSE(b.ordner.da(Datei)) << "without a file nothing happens";
    // The copy lies in the current folder.
    b.dateien.aktuellen_Ordner_setzen(b.ordner.ordner("anderswo"));
    b.störungen.Fehler_bestellen(Vorgang::umbenennen, 1);
    EXPECT_EQ(b.umnummeriert(inhalt, 5000, 7), inhalt);
    b.störungen.Fehler_bestellen(Vorgang::schreiben, 1);
    b.ABR.ABR_umnummerieren(5000, 7);
    EXPECT_EQ(b.ordner.inhalt(Kopie), inhalt);
    EXPECT_TRUE(b.ansicht.gefragt().empty());
    EXPECT_FALSE(b.haus.kanäle.offen(1) || b.haus.kanäle.offen(2));
    // The next call finds that copy in its way, reads it and mends the file.
    b.ABR.ABR_umnummerieren(5000, 7);
    EXPECT_EQ(b.ordner.inhalt(Datei), "1204: voll\r\n   7: voll\r\n");
    EXPECT_FALSE(b.ordner.da(Kopie));
}

}  // namespace
}  // namespace tonkartei
