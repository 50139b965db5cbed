#include "datenbank/info_datei.hpp"

#include <gtest/gtest.h>

#include "datenbank/version.hpp"
#include "grundlagen/codepage.hpp"
#include "oberflaeche/fortschritt.hpp"
#include "plattform/kanaele.hpp"
#include "plattform/linux/dateisystem_linux.hpp"
#include "probe/stumme_ansicht.hpp"
#include "testordner.hpp"

namespace tonkartei {
namespace {

// Every byte but the pair that ends a line; the last bytes are blanks and a comma, where readers like to cut.
std::string alle_Bytes() {
    std::string bytes = " ,\"";
    for (int i = 255; i >= 0; --i) bytes.push_back(static_cast<char>(i));
    return bytes + "\r\x7f , ";
}

std::string Datei(const std::string& artist, const std::string& version = "V 1.02 16") {
    std::string bytes = "Tonkartei\r\n" + version + "\r\n 2 \r\nAlle\r\n Hip-Hop, Rap\r\n 1 \r\n";
    for (int s = 1; s <= 9; ++s)
        bytes += s == 3 ? " 0 \r\nSchema 3\r\n" : " 2 \r\nSchema " + std::to_string(s) + "\r\n 2 \r\n 1 \r\n";
    bytes += " 650 \r\n 2 \r\n";
    bytes += " 7 \r\n" + artist + "\r\n 3072 \r\n 2 \r\nTitel\r\n0\r\n3\r\n59\r\n";
    bytes += "-1 \r\n\r\n 0 \r\n 1 \r\n\r\n0\r\n0\r\n0\r\n";
    return bytes;
}

struct Info_Test : testing::Test {
    Testordner ordner;
    Dateisystem_Linux dateien;
    Kanäle kanäle{dateien};
    Stumme_Ansicht ansicht;
    Fortschritts_Fenster fortschritt{ansicht};
    Modell modell;
    Info_Datei info{modell, kanäle, dateien, fortschritt, "temp/"};

    Info_Test() {
        modell.Programmversion = "V 1.02 16";
        modell.Datenbank_Verzeichnis = ordner.pfad();
        dateien.aktuellen_Ordner_setzen(ordner.pfad());
    }
    bool laden() {
        Text pfad = modell.Pfad(Info_Datei_Name);
        int nummer = 0;
        return info.pruefe_Info_Datei(pfad, nummer) && info.lesen(nummer);
    }
};

TEST_F(Info_Test, BytesKommenUnveraendertZurueck) {
    const std::string vorher = Datei(alle_Bytes());
    ordner.datei("MP3_Info.MDB", vorher);
    ASSERT_TRUE(laden());
    EXPECT_EQ(modell.Anzahl_Lieder, 2);
    EXPECT_EQ(nach_1252(modell.Lieder[1].Artist), alle_Bytes());
    EXPECT_EQ(modell.Lieder[2].Anzahl, -1);
    EXPECT_EQ(Sekunden_von(modell.Lieder[1].Zeit), 239);
    ordner.datei("MP3_Info.DBG", "offen");
    ASSERT_TRUE(info.schreibe_Datenbank(false));
    EXPECT_EQ(ordner.inhalt("MP3_Info.MDB"), vorher);
    EXPECT_FALSE(ordner.da("MP3_Bak.MDB"));
    EXPECT_FALSE(ordner.da("MP3_Info.DBG"));
}

// Cut anywhere, a file is told to be unreadable, or was whole in all that counts; the songs from before stay.
TEST_F(Info_Test, AbgeschnittenAnJedemByte) {
    const std::string ganz = Datei("Björk, \"live\"");
    const std::size_t letzte_Ziffer = ganz.size() - 3;
    modell.Anzahl_Lieder = 4711;
    for (std::size_t länge = 0; länge < ganz.size(); ++länge) {
        const std::string stück = ganz.substr(0, länge);
        ordner.datei("MP3_Info.MDB", stück);
        ansicht.Meldungen.clear();
        const bool gelesen = laden();
        EXPECT_EQ(gelesen, länge > letzte_Ziffer) << länge;
        EXPECT_EQ(ansicht.Meldungen.size(), gelesen ? 0U : 1U) << länge;
        EXPECT_EQ(ordner.inhalt("MP3_Info.MDB"), stück);
        EXPECT_FALSE(kanäle.offen(1)) << länge;
        EXPECT_EQ(modell.Anzahl_Lieder, gelesen ? 2 : 4711) << länge;
    }
}

TEST_F(Info_Test, Kopf) {
    const std::string rest = Datei("x").substr(std::string("Tonkartei\r\nV 1.02 16\r\n").size());
    for (const auto& [kopf, gelesen, boxen] : {std::tuple{"Tonkartei\r\nV 1.02 16\r\n", true, 0U},
                                               {" Tonkartei , V 1.02 16\r\n", true, 0U},
                                               {"tonkartei\r\nV 1.02 16\r\n", false, 1U},
                                               {"Ton,kartei\r\nV 1.02 16\r\n", false, 1U},
                                               // Nobody is there to convert these.
                                               {"Tonkartei\r\nV 1.01 06\r\n", false, 1U},
                                               {"Tonkartei\r\nV 1.00 01\r\n", false, 1U}}) {
        ordner.datei("MP3_Info.MDB", kopf + rest);
        ansicht.Meldungen.clear();
        EXPECT_EQ(laden(), gelesen) << kopf;
        EXPECT_EQ(ansicht.Meldungen.size(), boxen) << kopf;
        EXPECT_FALSE(kanäle.offen(1)) << kopf;
    }
}

}  // namespace
}  // namespace tonkartei
