#include "datenbank/konvertierung.hpp"

#include "datenbank/buehne.hpp"

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

struct Konvertierung_Test : Datenbankbühne {
    const std::string cd = ordner.ordner("cd");
    const std::string temp = ordner.ordner("temp");
    Lauf lauf{ordner, störfall};
    Modell& modell = lauf.modell;
    Antwortende_Ansicht& ansicht = lauf.ansicht;
    Kanäle& kanäle = lauf.haus.kanäle;

    Konvertierung_Test() { modell.Datenbank_Verzeichnis = cd; }
    static bool laden(Lauf& l) {
        Text pfad = l.modell.Pfad(Info_Datei_Name);
        int nummer = 0;
        l.ansicht.Meldungen.clear();
        return l.raum.info.pruefe_Info_Datei(pfad, nummer) && l.raum.info.lesen(nummer);
    }
    bool laden() { return laden(lauf); }
    std::string Meldung() const { return lauf.letzte(); }
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
    EXPECT_FALSE(lauf.haus.fortschritt.sichtbar());
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
    störfall.Dateien.Schreibschutz(cd, true);
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
    EXPECT_FALSE(lauf.raum.info.schreibe_Datenbank(true));
    EXPECT_EQ(Meldung(),
              "Datenbank speichern|Die Datenbank wurde nur in ein Temp-Verzeichnis konvertiert."
              "\r\rAlle Änderungen gehen beim schließen verloren.");
    EXPECT_FALSE(ordner.da("temp/Tempkonv.MDB"));

    ansicht.Antworten["Soll die Datenbank in ein temp"] = Antwort::Nein;
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
    störfall.Dateien.Schreibschutz(cd, true);
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
    for (const std::string& ganz : {Alt_1_00, Alt_1_01})
        // The last value of a 1.01 file is a whole line, and any line will do.
        an_jedem_Byte_abgeschnitten(
            ganz.substr(0, ganz.size() - (ganz == Alt_1_00 ? 5 : 3)),
            [&](const std::string& stück) {
                ordner.datei("cd/MP3_Info.MDB", stück);
                EXPECT_FALSE(laden());
                EXPECT_EQ(Meldung(), Gescheitert);
                EXPECT_EQ(ordner.inhalt("cd/konvert.bak"), stück);
                EXPECT_FALSE(kanäle.offen(1) || kanäle.offen(2));
            },
            23);
}

// Wherever it fails or dies, the first copy is there until the last step stands, and no file in between reads as current.
TEST_F(Konvertierung_Test, jede_Stelle) {
    const auto neu = [&](const std::string& alt) {
        ordner.datei("cd/MP3_Info.MDB", alt);
        EXPECT_TRUE(laden());
        return ordner.inhalt("cd/MP3_Info.MDB");
    };
    for (const std::string& alt : {Alt_1_00, Alt_1_01})
        for (const Vorgang vorgang :
             {Vorgang::umbenennen, Vorgang::öffnen, Vorgang::lesen, Vorgang::schreiben, Vorgang::löschen})
            for (const bool stirbt : {false, true}) {
                const std::string danach = neu(alt);
                const auto versuch = [&](const auto& arbeiten) {
                    for (const char* name : {"cd/konvert.bak", "cd/konvert.tmp"}) std::filesystem::remove(ordner.pfad(name));
                    ordner.datei("cd/MP3_Info.MDB", alt);
                    Lauf l(ordner, störfall);
                    l.modell.Datenbank_Verzeichnis = cd;
                    l.ansicht.Antworten["Soll die Datenbank in ein temp"] = Antwort::Nein;
                    bool gelesen = false;
                    arbeiten([&] { gelesen = laden(l); });
                    const std::string datei = ordner.inhalt("cd/MP3_Info.MDB");
                    EXPECT_TRUE(datei == alt || datei == danach || ordner.inhalt("cd/konvert.bak") == alt);
                    EXPECT_TRUE(datei == alt || datei == danach || datei == "(fehlt)" || datei.empty()) << datei;
                    EXPECT_FALSE(gelesen && (ordner.da("cd/konvert.bak") || ordner.da("cd/konvert.tmp")));
                };
                EXPECT_GT(stirbt ? störfall.vor_jedem_stirbt(vorgang, versuch) : störfall.jeder_scheitert(vorgang, versuch),
                          0);
            }
}

}  // namespace
}  // namespace tonkartei
