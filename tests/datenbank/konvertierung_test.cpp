#include "datenbank/konvertierung.hpp"

#include <gtest/gtest.h>

#include "datenbank/info_datei.hpp"
#include "oberflaeche/fortschritt.hpp"
#include "plattform/kanaele.hpp"
#include "plattform/linux/dateisystem_linux.hpp"
#include "probe/dateisystem_probe.hpp"
#include "probe/stumme_ansicht.hpp"
#include "testordner.hpp"

namespace tonkartei {
namespace {

const std::string Neun_Schemas = [] {
    std::string bytes;
    for (int s = 1; s <= 9; ++s) bytes += " 1 \r\nSchema " + std::to_string(s) + "\r\n 1 \r\n";
    return bytes;
}();

// In the escaped form a comma is the byte 130, a quote 129.
const std::string Lieder_1_00 =
    " 2 \r\n 7 \r\n  Earth\x82 Wind\r\n 3072 \r\n 2 \r\n\x81So\x81\r\n-1 \r\n\r\n 0 \r\n 1 \r\n---\r\n";
const std::string Alt_1_00 = "Tonkartei\r\nV 1.00 03\r\n 2 \r\n Alle \r\nHip-Hop\r\n" + Lieder_1_00;

const std::string Alt_1_01 = "Tonkartei\r\nV 1.01 05\r\n 2 \r\nAlle\r\n Rock, Pop\r\n 3 \r\n 2 \r\n a, b\r\n 2 \r\n 1 \r\n" +
                             Neun_Schemas.substr(Neun_Schemas.find(" 1 \r\nSchema 2")) +
                             " 2 \r\n 7 \r\n Earth, Wind \r\n 3072 \r\n 2 \r\n\"So\"\r\n-1 \r\n\r\n 0 \r\n 1 \r\nT\r\n";

struct Antwortende_Ansicht : Stumme_Ansicht {
    bool Temp_erlaubt = true;
    Antwort melden(const Meldungsfeld& feld) override {
        Stumme_Ansicht::melden(feld);
        if (feld.titel != "Datenbank konvertieren") return feld.vorgabe;
        return Temp_erlaubt ? Antwort::Ja : Antwort::Nein;
    }
};

struct Konvertierung_Test : testing::Test {
    Testordner ordner;
    const std::string cd = ordner.ordner("cd");
    const std::string temp = ordner.ordner("temp");
    Dateisystem_Linux platte;
    Störungen störungen{[] {}};
    Dateisystem_Probe dateien{platte, störungen};
    Kanäle kanäle{dateien};
    Antwortende_Ansicht ansicht;
    Fortschritts_Fenster fortschritt{ansicht};
    Modell modell;
    Info_Datei info{modell, kanäle, dateien, fortschritt, temp};

    Konvertierung_Test() {
        modell.Programmversion = "V 1.02 16";
        modell.Datenbank_Verzeichnis = cd;
    }
    bool laden() {
        Text pfad = modell.Pfad(Info_Datei_Name);
        int nummer = 0;
        ansicht.Meldungen.clear();
        return info.pruefe_Info_Datei(pfad, nummer) && info.lesen(nummer);
    }
    std::string Meldung() const { return ansicht.Meldungen.empty() ? "" : ansicht.Meldungen.back(); }
};

const char* const Gescheitert =
    "Fehler|Es ist ein Fehler beim Konvertieren aufgetreten!\r\rKontaktieren sie den Autor, um das Problem zum lösen.";

TEST_F(Konvertierung_Test, ZweiSchritteByteFuerByte) {
    ordner.datei("cd/MP3_Info.MDB", Alt_1_00);
    ordner.datei("cd/konvert.bak", "von einem früheren Fehlschlag");
    ASSERT_TRUE(laden());
    EXPECT_EQ(ansicht.Meldungen.size(), 1U);
    EXPECT_EQ(ordner.inhalt("cd/MP3_Info.MDB"),
              "Tonkartei\r\nV 1.02 16\r\n 2 \r\nAlle\r\nHip-Hop\r\n 0 \r\n" + Neun_Schemas +
                  " 0 \r\n 2 \r\n 7 \r\nEarth\x82 Wind\r\n 3072 \r\n 2 \r\n\x81So\x81\r\n0\r\n0\r\n0\r\n"
                  "-1 \r\n\r\n 0 \r\n 1 \r\n---\r\n0\r\n0\r\n0\r\n");
    EXPECT_FALSE(ordner.da("cd/konvert.bak"));
    EXPECT_FALSE(modell.konvertiert_in_Temp);
    EXPECT_EQ(modell.Lieder[1].Artist, "Earth\u201a Wind");
    EXPECT_EQ(modell.Schemas[9].Name, "Schema 9");
    EXPECT_FALSE(fortschritt.sichtbar());
}

TEST_F(Konvertierung_Test, EinSchrittBehaeltNamenUndSchemas) {
    ordner.datei("cd/MP3_Info.MDB", Alt_1_01);
    ASSERT_TRUE(laden());
    EXPECT_EQ(modell.Lieder[1].Artist, " Earth, Wind ");
    EXPECT_EQ(modell.Lieder[1].Titel, "\"So\"");
    EXPECT_EQ(modell.Lieder[2].Anzahl, -1);
    EXPECT_EQ(Sekunden_von(modell.Lieder[2].Zeit), 0);
    EXPECT_EQ(modell.Kategorien[2], " Rock, Pop");
    EXPECT_EQ(modell.Anz_Kat_Schemas, 3);
    EXPECT_EQ(modell.Schemas[1].Anzahl, 2);
    EXPECT_EQ(modell.Schemas[1].Kategorien[1], 2);
    EXPECT_EQ(modell.Backup_Warnungs_Grenze, 0);
    EXPECT_FALSE(ordner.da("cd/konvert.bak"));
}

TEST_F(Konvertierung_Test, SchreibgeschuetztGehtInsTemporaereVerzeichnis) {
    ordner.datei("cd/MP3_Info.MDB", Alt_1_01);
    ordner.datei("temp/Tempkonv.MDB", "von früher");
    dateien.Schreibschutz(cd, true);
    ASSERT_TRUE(laden());
    EXPECT_EQ(
        Meldung(),
        "Datenbank konvertieren|Es ist es Fehler beim schreiben der neuen Datenbank-Datei aufgetreten!\r\rDies kann "
        "passieren, wenn die Datenbank auf einer CD-Rom, auf einem Netzwerkpfad, auf den sie keinen Schreibzugriff, oder "
        "einem anderen, schreibgeschützten Datenträger liegt.\r\rDie Datenbank kann in ein temporäres Verzeichnis "
        "konvertiert werden. Allerdings können dann Änderungen von Ihnen nicht gespeichert werden.\r\rSoll die Datenbank "
        "in ein temporäres Verzeichnis konvertiert werden (Platzbedarf max. 150kB)?");
    EXPECT_TRUE(modell.konvertiert_in_Temp);
    EXPECT_EQ(modell.Temp_Info_Datei, temp + "Tempkonv.MDB");
    EXPECT_EQ(ordner.inhalt("cd/MP3_Info.MDB"), Alt_1_01);
    EXPECT_EQ(ordner.inhalt("temp/Tempkonv.MDB").substr(0, 22), "Tonkartei\r\nV 1.02 16\r\n");
    EXPECT_EQ(modell.Anzahl_Lieder, 2);
    EXPECT_FALSE(info.schreibe_Datenbank(true));
    EXPECT_EQ(Meldung(),
              "Datenbank speichern|Die Datenbank wurde nur in ein Temp-Verzeichnis konvertiert."
              "\r\rAlle Änderungen gehen beim schließen verloren.");
    EXPECT_FALSE(ordner.da("temp/Tempkonv.MDB"));

    ansicht.Temp_erlaubt = false;
    EXPECT_FALSE(laden());
    EXPECT_EQ(ansicht.Meldungen.size(), 2U);
    EXPECT_FALSE(modell.konvertiert_in_Temp);
    EXPECT_FALSE(kanäle.offen(1));
    EXPECT_EQ(ordner.inhalt("cd/MP3_Info.MDB"), Alt_1_01);
    EXPECT_FALSE(ordner.da("temp/Tempkonv.MDB"));
}

// The second step would have one file as source and target. The mark must not outlive that: it keeps collections from being
// saved.
TEST_F(Konvertierung_Test, ZweiSchritteVonSchreibgeschuetztScheitern) {
    ordner.datei("cd/MP3_Info.MDB", Alt_1_00);
    dateien.Schreibschutz(cd, true);
    EXPECT_FALSE(laden());
    ASSERT_EQ(ansicht.Meldungen.size(), 3U);
    EXPECT_TRUE(ansicht.Meldungen[1].starts_with("Datenbank konvertieren|"));
    EXPECT_EQ(Meldung(), Gescheitert);
    EXPECT_FALSE(kanäle.offen(1));
    EXPECT_FALSE(modell.konvertiert_in_Temp);
    EXPECT_FALSE(ordner.da("temp/Tempkonv.MDB"));
    EXPECT_EQ(ordner.inhalt("cd/MP3_Info.MDB"), Alt_1_00);
}

TEST_F(Konvertierung_Test, AbgeschnittenBleibtDieAlteDateiGanz) {
    for (const std::string& ganz : {Alt_1_00, Alt_1_01}) {
        // The last value of a 1.01 file is a whole line, and any line will do.
        const std::size_t letzter_Wert = ganz.size() - (ganz == Alt_1_00 ? 5 : 3);
        for (std::size_t länge = 23; länge < letzter_Wert; ++länge) {
            const std::string stück = ganz.substr(0, länge);
            ordner.datei("cd/MP3_Info.MDB", stück);
            EXPECT_FALSE(laden()) << länge;
            EXPECT_EQ(Meldung(), Gescheitert) << länge;
            EXPECT_EQ(ordner.inhalt("cd/konvert.bak"), stück) << länge;
            EXPECT_FALSE(kanäle.offen(1) || kanäle.offen(2)) << länge;
        }
    }
}

TEST_F(Konvertierung_Test, FehlerDerPlatteHalbWegs) {
    // The source, the target, what is written into it.
    for (const auto& [vorgang, n] : {std::pair{Vorgang::öffnen, 2}, {Vorgang::öffnen, 3}, {Vorgang::schreiben, 1}}) {
        SCOPED_TRACE(n);
        std::filesystem::remove(ordner.pfad("cd/konvert.bak"));
        ordner.datei("cd/MP3_Info.MDB", Alt_1_01);
        störungen.Fehler_bestellen(vorgang, n);
        EXPECT_FALSE(laden());
        EXPECT_EQ(Meldung(), Gescheitert);
        EXPECT_EQ(ordner.inhalt("cd/konvert.bak"), Alt_1_01);
        EXPECT_FALSE(kanäle.offen(1) || kanäle.offen(2));
    }
}

}  // namespace
}  // namespace tonkartei
