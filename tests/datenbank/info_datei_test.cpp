#include "datenbank/info_datei.hpp"

#include "datenbank/buehne.hpp"
#include "datenbank/quell_datenbank.hpp"
#include "datenbank/version.hpp"
#include "datenbank/vorschau.hpp"
#include "grundlagen/codepage.hpp"

namespace tonkartei {
namespace {

// Every byte but the pair that ends a line; the last bytes are blanks and a comma, where readers like to cut.
std::string alle_Bytes() {
    std::string bytes = " ,\"";
    for (int i = 255; i >= 0; --i) bytes.push_back(static_cast<char>(i));
    return bytes + "\r\x7f , ";
}

struct Info_Test : Datenbankbühne {
    Lauf lauf{ordner, störfall};
    Modell& modell = lauf.modell;
    Info_Datei& info = lauf.raum.info;
    std::vector<Text>& boxen = lauf.ansicht.Meldungen;

    Info_Test() { lauf.raum.sitzung.Verzeichnis_setzen(a); }
    bool laden() {
        Text pfad = modell.Pfad(Info_Datei_Name);
        int nummer = 0;
        boxen.clear();
        return info.pruefe_Info_Datei(pfad, nummer) && info.lesen(nummer);
    }
    Text vorschau() { return Vorschau_Text(lauf.haus.kanäle, störfall.Dateien, a, modell.Programmversion); }
    bool offen() const { return lauf.haus.kanäle.offen(1); }
};

TEST_F(Info_Test, BytesKommenUnveraendertZurueck) {
    const std::string vorher = Info_Bytes(alle_Bytes());
    ordner.datei("a/MP3_Info.MDB", vorher);
    ASSERT_TRUE(laden());
    EXPECT_EQ(modell.Anzahl_Lieder, 2);
    EXPECT_EQ(nach_1252(modell.Lieder[1].Artist), alle_Bytes());
    EXPECT_EQ(modell.Lieder[2].Anzahl, -1);
    EXPECT_EQ(Sekunden_von(modell.Lieder[1].Zeit), 239);
    ordner.datei("a/MP3_Info.DBG", "offen");
    ASSERT_TRUE(info.schreibe_Datenbank(false));
    EXPECT_EQ(ordner.inhalt("a/MP3_Info.MDB"), vorher);
    for (const char* name : {"a/MP3_Bak.MDB", "a/MP3_Info.DBG", "a/MP3_Rettung.MDB"}) EXPECT_FALSE(ordner.da(name));
}

TEST_F(Info_Test, so_viele_Lieder) {
    const std::string kopf = Info_Bytes().substr(0, Info_Bytes().find(" 2 \r\n 7 \r\n"));
    for (const char* anzahl : {" 0 ", "-1 ", "-2147483648 "}) {
        ordner.datei("a/MP3_Info.MDB", kopf + anzahl + "\r\n");
        EXPECT_EQ(lauf.Laufzeitfehler_bei([&] { ASSERT_TRUE(laden()); }), "") << anzahl;
        EXPECT_EQ(modell.Anzahl_Lieder, 0);
        EXPECT_EQ(vorschau(), "Anzahl Lieder: 0; Anzahl Kategorien: 2; Größe: 0 MB; Dauer: 00:00");
        EXPECT_EQ(Quell_Datenbank(lauf.haus).lesen(a)->Anzahl_Lieder, 0);
        ASSERT_TRUE(info.schreibe_Datenbank(true));
        EXPECT_EQ(ordner.inhalt("a/MP3_Info.MDB"), kopf + " 0 \r\n");
    }
}

// Cut anywhere, a file is told to be unreadable, or was whole in all that counts; the songs from before stay.
TEST_F(Info_Test, AbgeschnittenAnJedemByte) {
    const std::string ganz = Info_Bytes("Björk, \"live\"");
    const std::size_t letzte_Ziffer = ganz.size() - 3;
    modell.Anzahl_Lieder = 4711;
    an_jedem_Byte_abgeschnitten(ganz, [&](const std::string& stück) {
        ordner.datei("a/MP3_Info.MDB", stück);
        const bool ganz_genug = stück.size() > letzte_Ziffer;
        EXPECT_EQ(laden(), ganz_genug);
        EXPECT_EQ(boxen.size(), ganz_genug ? 0U : 1U);
        EXPECT_EQ(modell.Anzahl_Lieder, ganz_genug ? 2 : 4711);
        boxen.clear();
        EXPECT_EQ(Quell_Datenbank(lauf.haus).lesen(a).has_value(), ganz_genug);
        EXPECT_EQ(boxen.size(), ganz_genug ? 0U : 1U);
        EXPECT_EQ(vorschau().starts_with("Anzahl Lieder: 2"), ganz_genug);
        EXPECT_EQ(ordner.inhalt("a/MP3_Info.MDB"), stück);
        EXPECT_FALSE(offen());
    });
}

TEST_F(Info_Test, Kopf) {
    const std::string rest = Info_Bytes().substr(std::string("Tonkartei\r\nV 1.02 16\r\n").size());
    for (const auto& [kopf, gelesen, boxenzahl] : {std::tuple{"Tonkartei\r\nV 1.02 16\r\n", true, 0U},
                                                   {" Tonkartei , V 1.02 16\r\n", true, 0U},
                                                   {"tonkartei\r\nV 1.02 16\r\n", false, 1U},
                                                   {"Ton,kartei\r\nV 1.02 16\r\n", false, 1U}}) {
        ordner.datei("a/MP3_Info.MDB", kopf + rest);
        EXPECT_EQ(laden(), gelesen) << kopf;
        EXPECT_EQ(boxen.size(), boxenzahl) << kopf;
        EXPECT_FALSE(offen()) << kopf;
    }
}

// Died or failed anywhere, with the power gone, a save leaves one whole collection.
TEST_F(Info_Test, jede_Stelle_einer_Sicherung) {
    const std::string alt = Info_Bytes("alt"), neu = Info_Bytes("neu");
    for (const Vorgang vorgang : {Vorgang::umbenennen, Vorgang::öffnen, Vorgang::schreiben, Vorgang::löschen})
        for (const bool stirbt : {false, true}) {
            const auto versuch = [&](const auto& arbeiten) {
                std::filesystem::remove(ordner.pfad("a/MP3_Bak.MDB"));
                ordner.datei("a/MP3_Info.MDB", alt);
                ordner.datei("a/MP3_Info.DBG", "offen");
                Lauf l(ordner, störfall);
                l.raum.sitzung.Zugriffsdatei_ignorieren = true;
                ASSERT_TRUE(l.öffnen(a));
                l.modell.Lieder[1].Artist = "neu";
                arbeiten([&] {
                    const bool steht = l.raum.sitzung.schreibe_Datenbank(false);
                    EXPECT_NE(steht, l.raum.info.zu_retten());
                });
                // As the power leaves it.
                störfall.Dateien.Strom_weg();
                const std::string datei = ordner.inhalt("a/MP3_Info.MDB");
                EXPECT_TRUE(datei == alt || datei == neu || ordner.inhalt("a/MP3_Bak.MDB") == alt);
            };

            const int anzahl =
                stirbt ? störfall.vor_jedem_stirbt(vorgang, versuch) : störfall.jeder_scheitert(vorgang, versuch);
            // Scripts count the operations of a plain save.
            EXPECT_EQ(anzahl, vorgang == Vorgang::löschen ? 2 : 1);
            EXPECT_EQ(ordner.inhalt("a/MP3_Info.MDB"), neu);
        }
}

TEST_F(Info_Test, Zugriffsdatei) {
    Zugriffsdatei& zugriff = lauf.raum.zugriff;
    zugriff.schreibe_Zugriffsdatei();
    störfall.Dateien.Strom_weg();
    const std::string bytes =
        "Tonkartei\r\nV 1.02 16\r\nDatenbank-Zugriffsdatei\r\nRECHNER\r\nBENUTZER\r\n15\r\n1\r\n2026\r\n12\r\n0\r\n0\r\n";
    EXPECT_EQ(ordner.inhalt("a/MP3_Info.DBG"), bytes);
    const Text ende = "\r\rKontaktieren sie den Autor!",
               kaputt = "Zugriffsdatei lesen|Die Zugriffsdatei hat einen Fehler!" + ende;
    const struct {
        const char *stück, *statt;
        Text box;  // empty: good
    } fälle[] = {
        {"15\r\n1\r\n", "45\r\n13\r\n", ""},  // runs over into the next year
        {"V 1.02 16", "irgendwas", ""},
        {"2026", "30000", kaputt},
        {"2026", "0", kaputt},
        {"12", "99999", kaputt},
        {"Datenbank-Z", "Z", kaputt},
        {"Tonkartei", "tonkartei",
         "Zugriffsdatei lesen|Die Zugriffsdatei ist nicht von diesem Programm erstellt worden!" + ende},
        {"0\r\n0\r\n", "0\r\n",
         "Zugriffsdatei lesen|Es ist ein Fehler beim Lesen der Datenbank-Zugriffsdatei aufgetreten!" + ende},
    };
    for (const auto& fall : fälle) {
        std::string andere = bytes;
        ordner.datei("a/MP3_Info.DBG", andere.replace(andere.find(fall.stück), std::string(fall.stück).size(), fall.statt));
        boxen.clear();
        Zeitpunkt zeit;
        Text computer, benutzer;
        EXPECT_EQ(zugriff.lese_Zugriffsdatei(modell.Pfad(Zugriffsdatei_Name), zeit, computer, benutzer), fall.box.empty());
        EXPECT_EQ(boxen, fall.box.empty() ? std::vector<Text>{} : std::vector{fall.box}) << fall.statt;
        EXPECT_FALSE(offen());
    }
}

}  // namespace
}  // namespace tonkartei
