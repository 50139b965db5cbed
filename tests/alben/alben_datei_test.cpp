// MP3_Info.ALB: its bytes, its head, damaged files, what is on the disk after a failure, and the links to songs.
#include "alben/buehne.hpp"

namespace tonkartei {
namespace {

TEST_F(Albenbühne, Bytes_kommen_unverändert_zurück) {
    ordner.datei(Alben_Datei_Name, Kopf + Zwei_Alben);
    ASSERT_TRUE(datei.Alben_lesen());
    EXPECT_TRUE(modell.Alben_geladen);
    EXPECT_FALSE(modell.Alben_geändert);
    ASSERT_EQ(alben.eigene.Anzahl, 2);
    const Album& album = alben.eigene.Alben[1];
    EXPECT_EQ(album.Interpret, " Can, \"live\" ");
    EXPECT_EQ(album.Jahr, 1972);
    EXPECT_EQ(album.Titel_Anzahl, 2);
    EXPECT_EQ(Sekunden_von(album.Lieder[1].Zeit), 214);
    EXPECT_TRUE(album.Lieder[1].in_Datenbank);
    EXPECT_EQ(album.Lieder[1].Lied_Nr, 12);
    EXPECT_EQ(Stunde(album.Lieder[2].Zeit), 1);
    EXPECT_EQ(alben.eigene.Alben[2].Interpret, "Amon Düül");
    EXPECT_TRUE(alben.eigene.Alben[2].Maxi_CD);
    modell.Alben_geändert = true;
    ASSERT_TRUE(datei.Alben_schreiben());
    EXPECT_EQ(albdatei(), Kopf + Zwei_Alben);
    EXPECT_FALSE(ordner.da(Alben_Kopie_Name));
    EXPECT_FALSE(modell.Alben_geändert);
    EXPECT_FALSE(kanäle.offen(1));
}

TEST_F(Albenbühne, Kopf) {
    const std::string beschädigt =
        "Tonkartei|Die Alben-Verwaltung-Datei (" + ordner.pfad(Alben_Datei_Name) +
        ") ist fehlerhaft!\r\rKontaktieren sie den Autor, um eventuell noch die Daten zu retten.\r\rtonkartei@example.org";
    const auto andere = [](const std::string& version, const std::string& was) {
        return "Tonkartei|Die Alben-Verwaltungsdatei ist von einer anderen Programmversion.\r\raktuelle Programmversion: "
               "V 1.02 16\rDateiversion: " +
               version + "\r\r" + was;
    };
    const std::string alt =
        "Die alte Versionen der Datei kann eingelesen und konvertiert werden. Allerdings kann sie dann nicht mehr mit "
        "Programmversionen, die kleiner Version des Programms geöffnet werden.\r\rSoll die Alben-Verwaltungsdatei geöffnet "
        "und konvertiert werden?";
    const std::string unbekannt =
        "Kontaktieren sie den Autor für ein Update oder einen Konverter für die Datei.\r\rtonkartei@example.org\r\rEs kann "
        "auf eigene Gefahr hin versucht werden die Datei trotzdem zu lesen. Wollen sie dies tun?";
    const std::string kennung = "\r\nDatenbank Alben-Verwaltung\r\n";
    struct Fall {
        std::string kopf;
        Antwort antwort;  // OK: the question's default
        bool gelesen, geändert;
        std::vector<Text> meldung;
        std::vector<Antwort> vorgabe = {};
    };
    const Fall fälle[] = {
        {"Tonkartei\r\nV 1.02 16" + kennung, Antwort::OK, true, false, {}},
        {" Tonkartei\r\nV 1.02 16" + kennung, Antwort::OK, false, false, {beschädigt}},
        {"Tonkartei\r\nV 1.02 16\r\nDatenbank-Zugriffsdatei\r\n", Antwort::OK, false, false, {beschädigt}},
        {"Tonkartei\r\nV 1.02 15" + kennung, Antwort::OK, true, true, {andere("V 1.02 15", alt)}, {Antwort::Ja}},
        {"Tonkartei\r\nV 1.02 00" + kennung, Antwort::Nein, false, false, {andere("V 1.02 00", alt)}, {Antwort::Ja}},
        {"Tonkartei\r\nV 1.01 06" + kennung, Antwort::OK, false, false, {andere("V 1.01 06", unbekannt)}, {Antwort::Nein}},
        // Of an unknown version nothing is read, whatever the answer.
        {"Tonkartei\r\nV 1.03 00" + kennung, Antwort::Ja, false, true, {andere("V 1.03 00", unbekannt)}, {Antwort::Nein}},
    };
    for (const Fall& fall : fälle) {
        SCOPED_TRACE(fall.kopf);
        const std::string bytes = fall.kopf + Zwei_Alben;
        ordner.datei(Alben_Datei_Name, bytes);
        neue_Boxen();
        ansicht.antwort = fall.antwort;
        alben.eigene = {};
        modell.Alben_geladen = modell.Alben_geändert = false;
        EXPECT_EQ(datei.Alben_lesen(), fall.gelesen);
        EXPECT_EQ(modell.Alben_geladen, fall.gelesen);
        EXPECT_EQ(modell.Alben_geändert, fall.geändert);
        EXPECT_EQ(alben.eigene.Anzahl, fall.gelesen ? 2 : 0);
        EXPECT_EQ(ansicht.Meldungen, fall.meldung);
        EXPECT_EQ(ansicht.Vorgaben, fall.vorgabe);
        EXPECT_FALSE(kanäle.offen(1));
        // The next save: what was read goes out in today's version; nothing goes over what was not.
        ASSERT_TRUE(datei.Alben_schreiben());
        EXPECT_EQ(albdatei(), fall.gelesen ? Kopf + Zwei_Alben : bytes);
        EXPECT_FALSE(modell.Alben_geändert);
    }
}

// Cut anywhere, a file is not read, or was whole in all that counts; the albums from before stay.
TEST_F(Albenbühne, abgeschnitten_an_jedem_Byte) {
    const std::string ganz = Kopf + Zwei_Alben;
    const std::size_t gelesen_ab = ganz.size() - 1;  // the last line is empty: its line end is what tells that it is there
    alben.eigene.Anzahl = 7;
    an_jedem_Byte_abgeschnitten(ganz, [&](const std::string& stück) {
        ordner.datei(Alben_Datei_Name, stück);
        neue_Boxen();
        modell.Alben_geladen = false;
        const bool gelesen = datei.Alben_lesen();
        EXPECT_EQ(gelesen, stück.size() >= gelesen_ab);
        EXPECT_EQ(alben.eigene.Anzahl, gelesen ? 2 : 7);
        // Only a head that reads wrong is told, not one that ends.
        EXPECT_TRUE(stück.size() < Kopf.size() || ansicht.Meldungen.empty());
        EXPECT_FALSE(kanäle.offen(1));
    });
}

TEST_F(Albenbühne, Zahlen_außerhalb) {
    const auto mal = [](int anzahl, const std::string& text) {
        std::string ergebnis;
        for (int n = 1; n <= anzahl; ++n) ergebnis += text;
        return ergebnis;
    };
    const std::string album = "\r\n\r\n 1999 \r\nF\r\n\r\n", titel = "\r\n0\r\n1\r\n2\r\nTrue\r\n 0 \r\n\r\n";
    const struct {
        std::string körper;
        Long anzahl;  // -1: cannot be read
    } fälle[] = {
        {" 0 \r\n", 0},
        {"-3 \r\n", 0},
        {" 5001 \r\n" + mal(5001, " 0 " + album), -1},
        {" 2147483647 \r\n 0 " + album, -1},
        {" 2147483648 \r\n", -1},
        {" 1 \r\n 201 " + album + mal(201, titel), -1},
        {" 1 \r\n 256 " + album, -1},
        {" 1 \r\n-1 " + album, -1},
        {" 1 \r\n 200 " + album + mal(200, titel), 1},
    };
    for (const auto& fall : fälle) {
        const std::string anfang = fall.körper.substr(0, 20);
        ordner.datei(Alben_Datei_Name, Kopf + fall.körper);
        alben.eigene = {};
        EXPECT_EQ(datei.Alben_lesen(), fall.anzahl >= 0) << anfang;
        EXPECT_EQ(alben.eigene.Anzahl, std::max(fall.anzahl, 0)) << anfang;
        EXPECT_FALSE(kanäle.offen(1)) << anfang;
    }
    EXPECT_TRUE(ansicht.Meldungen.empty());
    EXPECT_FALSE(alben.eigene.Alben[1].Lieder[1].in_Datenbank) << "truth in other words";
}

TEST_F(Albenbühne, fremde_Datei_in_den_zweiten_Platz) {
    const std::string pfad = ordner.datei("fremd.alb", Kopf + Zwei_Alben);
    ASSERT_TRUE(datei.Alben_lesen(pfad));
    EXPECT_EQ(alben.fremde.Anzahl, 2);
    EXPECT_EQ(alben.eigene.Anzahl, 0);
    EXPECT_FALSE(modell.Alben_geladen);
    EXPECT_FALSE(datei.Alben_lesen(ordner.pfad("fehlt.alb")));
    EXPECT_EQ(alben.fremde.Anzahl, 2);
}

TEST_F(Albenbühne, immer_steht_eine_ganze_Datei) {
    const std::string ganz = Kopf + Zwei_Alben, neu = Kopf + " 0 \r\n";
    for (const Vorgang vorgang : {Vorgang::umbenennen, Vorgang::öffnen, Vorgang::schreiben, Vorgang::löschen})
        for (const bool stirbt : {false, true}) {
            const auto lauf = [&](const auto& arbeiten) {
                std::filesystem::remove(ordner.pfad(Alben_Kopie_Name));
                ordner.datei(Alben_Datei_Name, ganz);
                ASSERT_TRUE(datei.Alben_lesen());
                modell.Alben_geändert = true;
                alben.eigene.Anzahl = 0;
                arbeiten([&] {
                    const bool steht = datei.Alben_schreiben();
                    EXPECT_NE(steht, modell.Alben_geändert);
                });
                störfall.Dateien.Strom_weg();
                const std::string jetzt = albdatei(), kopie = ordner.inhalt(Alben_Kopie_Name);
                EXPECT_TRUE(jetzt == ganz || jetzt == neu || kopie == ganz);
                kanäle.aufgeben(1);
                // As long as that copy is there, it is not overwritten.
                EXPECT_TRUE(kopie == "(fehlt)" || jetzt == "(fehlt)" || !datei.Alben_schreiben());
            };
            EXPECT_EQ(stirbt ? störfall.vor_jedem_stirbt(vorgang, lauf) : störfall.jeder_scheitert(vorgang, lauf), 1);
        }
    EXPECT_TRUE(ansicht.Meldungen.empty());
}

TEST_F(Albenbühne, Verweise_folgen_den_Liedern) {
    // Without a file that can be read, there is nothing to do and nothing to write.
    const std::string kaputt = Kopf + " 2 \r\n";
    for (const bool da : {false, true}) {
        if (da) ordner.datei(Alben_Datei_Name, kaputt);
        datei.Album_Referenz_ändern(12, 3);
        EXPECT_FALSE(modell.Alben_geladen || modell.Alben_geändert);
    }
    EXPECT_TRUE(datei.Alben_schreiben());
    EXPECT_EQ(albdatei(), kaputt);

    ordner.datei(Alben_Datei_Name, Kopf + Zwei_Alben);
    datei.Album_Referenz_ändern(12, 3);
    EXPECT_TRUE(modell.Alben_geladen && modell.Alben_geändert);
    const Album_Lieder& lieder = alben.eigene.Alben[1].Lieder;
    EXPECT_EQ(lieder[1].Lied_Nr, 3);
    datei.Album_Referenz_ändern(12, 5);
    EXPECT_EQ(lieder[1].Lied_Nr, 3);
    datei.Album_Referenz_ändern(-1, 5);  // not linked: its number means nothing
    EXPECT_EQ(lieder[2].Lied_Nr, -1);
    datei.Album_Referenz_ändern(3, 0);
    EXPECT_FALSE(lieder[1].in_Datenbank);

    // Loaded, it needs no file.
    alben.eigene.Alben[1].Lieder[1] = {.Artist = "", .Titel = "", .Zeit = 0, .in_Datenbank = true, .Lied_Nr = 4};
    std::filesystem::remove(ordner.pfad(Alben_Datei_Name));
    modell.Alben_geändert = false;
    datei.Album_Referenz_ändern(4, 9);
    EXPECT_EQ(lieder[1].Lied_Nr, 9);
    EXPECT_TRUE(modell.Alben_geändert);
}

}  // namespace
}  // namespace tonkartei
