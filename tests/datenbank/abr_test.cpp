// The file of aborted listens.
#include "datenbank/abr_datei.hpp"

#include "datenbank/buehne.hpp"

namespace tonkartei {
namespace {

constexpr const char* Datei = "a/MP3_Info.ABR";
constexpr const char* Kopie = "b/MP3_Bak.ABR";  // lies in the current folder

struct ABR : Datenbankbühne {
    Kanäle kanäle{störfall.Dateien};
    Modell modell;
    ABR_Datei abr{modell, störfall.Dateien, kanäle};
    ABR() {
        modell.Datenbank_Verzeichnis = a;
        störfall.Dateien.aktuellen_Ordner_setzen(b);
    }
};

TEST_F(ABR, Spalten) {
    const std::pair<const char*, const char*> fälle[] = {
        {"1204: 183\r\n1204: VoLL \r\n", "1204=183 1204=voll "},
        {"  12: 183\r\n   7: voll\r\n   1: 0\r\n", "12=183 7=voll 1=0 "},
        {"   0: voll\r\nabcd: voll\r\n  -1: voll\r\n", ""},
        {"1204:\r\n 120:  \r\n\r\n \r\n  ", "120=0 "},        // shorter than seven columns
        {"1000: 5,  12: 6,,9999: 7", "1000=5 12=6 9999=7 "},  // a comma ends the record, and blanks behind it count
        {"12: voll\r\n3000:\xFC  7 s", "12=0 3000=7 "},       // an unpadded number shifts what is behind it
    };
    for (const auto& [bytes, erwartet] : fälle) {
        ordner.datei(Datei, bytes);
        const int kanal = kanäle.öffnen_zum_Lesen(ordner.pfad(Datei));
        Text gelesen;
        while (const auto satz = lese_ABR_Satz(kanäle, kanal))
            gelesen += Zahltext(satz->Nr) + "=" +
                       (satz->voll() ? "voll" : Zahltext(static_cast<long long>(satz->Sekunden()))) + " ";
        EXPECT_EQ(gelesen, erwartet) << bytes;
        kanäle.schließen(kanal);
    }
}

TEST_F(ABR, umnummerieren) {
    const struct {
        const char* was;
        Long alt, neu;
        const char *vorher, *nachher;
    } fälle[] = {
        {"the removed song goes, the last one takes its number", 5000, 7, "   7: voll\r\n5000: voll\r\n", "   7: voll\r\n"},
        {"others stay, in any spelling", 5000, 7, "1204: VOLL\r\n0012:  voll\r\n", "1204: voll\r\n  12: voll\r\n"},
        {"seconds are lost, 0 and words without a number are not", 9, 1,
         "1204: 183\r\n  12: 180\r\n1204: 0\r\n1204: halb\r\n1204: 0.4\r\n", "1204: 0\r\n1204: 0\r\n"},
        {"0 of the removed song", 9, 1204, "1204: 0\r\n", ""},
        {"commas end records", 1300, 1200, "1204: voll,1300: voll,1200: voll", "1204: voll\r\n1200: voll\r\n"},
    };
    for (const auto& fall : fälle) {
        ordner.datei(Datei, fall.vorher);
        abr.ABR_umnummerieren(fall.alt, fall.neu);
        EXPECT_EQ(ordner.inhalt(Datei), fall.nachher) << fall.was;
        EXPECT_FALSE(ordner.da(Kopie)) << fall.was;
    }
    std::filesystem::remove(ordner.pfad(Datei));
    abr.ABR_umnummerieren(5000, 7);
    EXPECT_FALSE(ordner.da(Datei)) << "without a file nothing happens";
}

TEST_F(ABR, immer_steht_eine_ganze_Datei) {
    const std::string vorher = "1204: voll\r\n5000: voll\r\n", nachher = "1204: voll\r\n   7: voll\r\n";
    for (const Vorgang vorgang :
         {Vorgang::umbenennen, Vorgang::öffnen, Vorgang::lesen, Vorgang::schreiben, Vorgang::löschen})
        for (const bool stirbt : {false, true}) {
            const auto lauf = [&](const auto& arbeiten) {
                ordner.datei(Datei, vorher);
                std::filesystem::remove(ordner.pfad(Kopie));
                arbeiten([&] {
                    Kanäle eigene(störfall.Dateien);
                    ABR_Datei(modell, störfall.Dateien, eigene).ABR_umnummerieren(5000, 7);
                    EXPECT_FALSE(eigene.offen(1) || eigene.offen(2));
                });
                const std::string datei = ordner.inhalt(Datei);
                EXPECT_TRUE(datei == vorher || datei == nachher || ordner.inhalt(Kopie) == vorher);
                if (!ordner.da(Datei) || !ordner.da(Kopie)) return;
                // The next call finds that copy in its way, reads it and mends the file.
                abr.ABR_umnummerieren(5000, 7);
                EXPECT_EQ(ordner.inhalt(Datei), nachher);
                EXPECT_FALSE(ordner.da(Kopie));
            };
            EXPECT_GT(stirbt ? störfall.vor_jedem_stirbt(vorgang, lauf) : störfall.jeder_scheitert(vorgang, lauf), 0);
        }
}

}  // namespace
}  // namespace tonkartei
