#include "datenbank/info_datei.hpp"

#include <gtest/gtest.h>

#include "datenbank/fortschritt.hpp"
#include "datenbank/version.hpp"
#include "grundlagen/codepage.hpp"
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
        bytes +=
            (s == 3 ? " 0 \r\n" : " 2 \r\n") + ("Schema " + std::to_string(s)) + "\r\n" + (s == 3 ? "" : " 2 \r\n 1 \r\n");
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
    Info_Datei info{modell, kanäle, dateien, ansicht, fortschritt};

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

TEST_F(Info_Test, KopfUndFragen) {
    struct Fall {
        std::string kopf;
        bool gelesen;
        std::string meldung;  // part of the one box
    };
    const Fall fälle[] = {
        {"Tonkartei\r\nV 1.02 16\r\n", true, ""},
        {" Tonkartei , V 1.02 16\r\n", true, ""},
        {"tonkartei\r\nV 1.02 16\r\n", false,
         "Tonkartei|Die Informationsdatei MP3_Info.MDB ist fehlerhaft!\r\rKontaktieren sie den Autor, um eventuell noch die "
         "Daten zu retten.\r\r"},
        {"Tonkartei\r\nV 1.02 15\r\n", true,
         "Dateiversion: V 1.02 15\r\rDie alte Versionen der Datei kann eingelesen und konvertiert werden. Allerdings kann "
         "sie dann nicht mehr mit Programmversionen, die kleiner Version des Programms geöffnet werden.\r\rSoll die "
         "Datenbank geöffnet und konvertiert werden?"},
        {"Tonkartei\r\nV 1.02 00\r\n", true, "Soll die Datenbank geöffnet und konvertiert werden?"},
        {"Tonkartei\r\nV 1.03 00\r\n", false, "Es kann auf eigene Gefahr hin versucht werden"},
        {"Tonkartei\r\nV 1.00 07\r\n", false, "Es kann auf eigene Gefahr hin versucht werden"},
        {"Tonkartei\r\nV 1.01 06\r\n", false, "Soll die Datenbank geöffnet und konvertiert werden?"},
        {"Tonkartei\r\nV 1.00 01\r\n", false, "Soll die Datenbank geöffnet und konvertiert werden?"},
        {"Tonkartei", false, "Tonkartei|Es ist ein Fehler beim öffnen der Informationsdatei aufgetreten!"},
    };
    const std::string rest = Datei("x").substr(std::string("Tonkartei\r\nV 1.02 16\r\n").size());
    for (const Fall& fall : fälle) {
        ordner.datei("MP3_Info.MDB", fall.kopf.size() > 12 ? fall.kopf + rest : fall.kopf);
        ansicht.Meldungen.clear();
        EXPECT_EQ(laden(), fall.gelesen) << fall.kopf;
        if (fall.meldung.empty()) {
            EXPECT_TRUE(ansicht.Meldungen.empty()) << fall.kopf;
        } else {
            ASSERT_EQ(ansicht.Meldungen.size(), 1U) << fall.kopf;
            EXPECT_NE(ansicht.Meldungen[0].find(fall.meldung), Text::npos) << ansicht.Meldungen[0];
        }
        EXPECT_FALSE(kanäle.offen(1)) << fall.kopf;
    }
}

TEST_F(Info_Test, FalscheKategorieWirdGemeldetUndEins) {
    std::string bytes = Datei("Artist");
    bytes.replace(bytes.find(" 3072 \r\n 2 "), 11, " 3072 \r\n 3 ");
    ordner.datei("MP3_Info.MDB", bytes);
    ASSERT_TRUE(laden());
    EXPECT_EQ(modell.Lieder[1].Kategorie, 1);
    ASSERT_EQ(ansicht.Meldungen.size(), 1U);
    EXPECT_EQ(ansicht.Meldungen[0],
              "Datenbank laden|Das Lied \"Titel\"\rvon \"Artist\"\rhat einen Fehler bei der eingestellten Kategorie!\r\r"
              "Die Kategorie wurde auf \"Alle\" gesetzt.\r\rBitte überprüfen!");
}

TEST_F(Info_Test, ZahlenAusserhalbBeendenMitFehler) {
    struct Fall {
        std::string alt, neu;
        int nummer;
    };
    const std::string ganz = Datei("x");
    const Fall fälle[] = {
        {"V 1.02 16\r\n 2 ", "V 1.02 16\r\n 256 ", Fehler_Überlauf}, {"V 1.02 16\r\n 2 ", "V 1.02 16\r\n 21 ", Fehler_Index},
        {" 650 \r\n 2 ", " 650 \r\n 2147483648 ", Fehler_Überlauf},  {" 2 \r\nSchema 1", " 21 \r\nSchema 1", Fehler_Index},
        {"0\r\n3\r\n59", "0\r\n3\r\n32768", Fehler_Überlauf},
    };
    for (const Fall& fall : fälle) {
        std::string bytes = ganz;
        bytes.replace(bytes.find(fall.alt), fall.alt.size(), fall.neu);
        // Names enough for a count beyond the table.
        for (int i = 0; i < 40; ++i) bytes += " 1 \r\n";
        ordner.datei("MP3_Info.MDB", bytes);
        Kanäle eigene{dateien};
        Info_Datei eigenes{modell, eigene, dateien, ansicht, fortschritt};
        try {
            Text pfad = modell.Pfad(Info_Datei_Name);
            int nummer = 0;
            ASSERT_TRUE(eigenes.pruefe_Info_Datei(pfad, nummer));
            eigenes.lesen(nummer);
            ADD_FAILURE() << fall.neu;
        } catch (const Laufzeitfehler& fehler) {
            EXPECT_EQ(fehler.Nummer(), fall.nummer) << fall.neu;
        }
    }
}

// A save that failed leaves its channel taken: the next file gets the second one, and its times come from the first.
TEST_F(Info_Test, GescheitertesSpeichernLaesstDateiOffen) {
    ordner.datei("MP3_Info.MDB", Datei("x"));
    ASSERT_TRUE(laden());
    ordner.datei("MP3_Bak.MDB", "von früher");
    EXPECT_FALSE(info.schreibe_Datenbank(false));
    EXPECT_EQ(ansicht.Meldungen.back(),
              "Tonkartei|Es ist ein Fehler beim Schreiben der Datenbank-Informations-Datei aufgetreten!\r\rEventuell ist "
              "der Datenträger schreibgeschützt?");
    EXPECT_EQ(ordner.inhalt("MP3_Info.MDB"), Datei("x"));
    std::filesystem::remove(ordner.pfad("MP3_Bak.MDB"));

    std::filesystem::create_directory(ordner.pfad("MP3_Info.DBG"));  // cannot be deleted as a file, and counts as none
    EXPECT_TRUE(info.schreibe_Datenbank(false));
}

TEST_F(Info_Test, InsTempKonvertiertWirdNichtGespeichert) {
    ordner.datei("MP3_Info.MDB", Datei("x"));
    ASSERT_TRUE(laden());
    modell.konvertiert_in_Temp = true;
    modell.Temp_Info_Datei = ordner.datei("Tempkonv.MDB", "x");
    EXPECT_FALSE(info.schreibe_Datenbank(true));
    EXPECT_EQ(ansicht.Meldungen.back(),
              "Datenbank speichern|Die Datenbank wurde nur in ein Temp-Verzeichnis konvertiert."
              "\r\rAlle Änderungen gehen beim schließen verloren.");
    EXPECT_FALSE(ordner.da("Tempkonv.MDB"));
    EXPECT_FALSE(modell.konvertiert_in_Temp);
}

}  // namespace
}  // namespace tonkartei
