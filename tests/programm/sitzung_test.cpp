// The session where it is bent: ends from outside, bytes that are no text, files that are no collection.
#include "plattform/dateisystem.hpp"
#include "programm/buehne.hpp"

namespace tonkartei {
namespace {

class Sitzung : public Bühne {
protected:
    std::string a = sammlung("a");
    void außen_beenden() {
        hand("schließe Tonkartei extern");
        EXPECT_EQ(b->bereit(), "ende");
        EXPECT_EQ(b->Ende_abwarten(), 0);
    }
    static std::string ersetzt(std::string text, const std::string& was, const std::string& womit) {
        const auto stelle = text.find(was);
        EXPECT_NE(stelle, std::string::npos) << was;
        return text.replace(stelle, was.size(), womit);
    }
};

TEST_F(Sitzung, Versionen_an_den_Rändern) {
    for (const auto& [version, bekannt] :
         {std::pair{"V 1.02 00", true}, {"V 1.02 17", false}, {"v 1.02 15", false}, {"V 1.00 07", false}}) {
        öffnen(sammlung("alt", {.Version = version}));
        EXPECT_EQ(b->meldung().find("Soll die Datenbank geöffnet und konvertiert werden?") != std::string::npos, bekannt)
            << version;
    }
}

// A path's bytes go through folder choice, registry and list unchanged, whatever they mean; so do a song's.
TEST_F(Sitzung, fremde_Bytes) {
    if (Trenner != '/') GTEST_SKIP() << "a name is text on this system";
    const std::string fremd = sammlung("\xff\xe4 & b");
    ordner.ordner("quelle");
    ordner.datei("quelle/\xff\xfe.mp3", bytes(1));
    ordner.datei("quelle/Ж日.mp3", bytes(2));
    starten({.setze = zuletzt({ordner.pfad("weg/")})});
    hände({"klick Splash.Button(2)", "pfad " + Bediener::zitiert(fremd)});
    ASSERT_EQ(b->bereit(), "schleife");
    beenden();
    starten({.setze = {"geöffnete Datenbanken\\Anzahl=1"}});
    ASSERT_EQ(b->bereit(), "schleife");
    EXPECT_EQ(Bediener::Pfadbytes(b->text("Tonkartei.Datenbank")), fremd);
    hände({"klick Tonkartei.Lieder_hinzufügen_Verzeichnis", "setze Verzeichnis_add.Pfad " + ordner.pfad("quelle"),
           "klick Verzeichnis_add.Ok"});
    EXPECT_EQ(b->zeilen("neue_Lieder_Liste.gefundene_Lieder"), (Zeilen{"??.mp3", "??.mp3"}));
    hand("klick neue_Lieder_Liste.Ok");
    durchziehen();
    EXPECT_EQ(Testordner::inhalt_von(fremd + "00000004.MP3") + Testordner::inhalt_von(fremd + "00000005.MP3"),
              bytes(2) + bytes(1));
}

TEST_F(Sitzung, Ende_von_außen) {
    // In the main loop without the progress window; in waiting and modal windows and under a box just the same.
    for (const Zeilen& wo : {Zeilen{}, Zeilen{"klick Tonkartei.öffne_Datenbank"}, Zeilen{"klick Tonkartei.Uninstall"},
                             Zeilen{"klick Tonkartei.Lieder_hinzufügen_Verzeichnis"}}) {
        öffnen(a);
        hände(wo);
        geschehen();
        außen_beenden();
        EXPECT_EQ(geschehen(), Zeilen{"ende"}) << (wo.empty() ? "" : wo[0]);
        EXPECT_EQ(mdb(), Sammlung{}.bytes());
        EXPECT_FALSE(ordner.da("a/MP3_Info.DBG"));
    }
}

// Under the boxes of opening nothing stands in memory that belongs to the folder: an end from outside must not save it
// there.
TEST_F(Sitzung, Ende_von_außen_unter_den_Fragen_des_Öffnens) {
    Sammlung falsch;
    falsch.Lieder[1].Kategorie = 9;
    const Sammlung andere{.Lieder = {{"Ganz", "anders"}, {"Noch", "eins"}}};
    sammlung("a", andere);
    const std::string gut = Sammlung{}.bytes(), keine = "(fehlt)";
    const std::string zugriff =
        "Tonkartei\r\nV 1.02 16\r\nDatenbank-Zugriffsdatei\r\nTURM\r\nHEIDI\r\n5\r\n3\r\n2026\r\n14\r\n7\r\n33\r\n";
    const struct {
        const char* name;
        std::string inhalt, zugriff;
    } fälle[] = {{"Zugriffsdatei", gut, zugriff},
                 {"kaputte Zugriffsdatei", gut, "x"},
                 {"alte Version", Sammlung{.Version = "V 1.02 15"}.bytes(), keine},
                 {"fremd", Sammlung{.Version = "V 9"}.bytes(), keine},
                 {"falscher Titel", Sammlung{.Titel = "x"}.bytes(), keine},
                 {"Kategorie", falsch.bytes(), keine},
                 {"keine Datenbank", keine, keine}};
    for (const auto& f : fälle)
        for (const bool erste : {true, false}) {
            SCOPED_TRACE(std::string(f.name) + (erste ? ", erste" : ", zweite"));
            std::filesystem::remove_all(ordner.pfad("neu"));
            std::filesystem::remove_all(ordner.pfad("wurzel"));
            const std::string neu = ordner.ordner("neu");
            if (f.inhalt != keine) ordner.datei("neu/MP3_Info.MDB", f.inhalt);
            if (f.zugriff != keine) ordner.datei("neu/MP3_Info.DBG", f.zugriff);
            öffnen(erste ? neu : a);
            if (!erste) wechseln(neu);
            ASSERT_EQ(b->bereit(), "meldung");
            außen_beenden();
            EXPECT_EQ(mdb("neu"), f.inhalt);
            EXPECT_EQ(mdb(), andere.bytes());
            EXPECT_FALSE(ordner.da("neu/MP3_Bak.MDB"));
            EXPECT_EQ(ordner.inhalt("neu/MP3_Info.DBG"), f.zugriff);
        }
    öffnen(a);
    hände({"klick Tonkartei.Datenbank_neu", "antwort OK", "pfad " + ordner.pfad(), "eingabe Anfang"});
    ASSERT_EQ(b->bereit(), "meldung");
    außen_beenden();
    EXPECT_TRUE(std::filesystem::is_empty(ordner.pfad("Anfang")));
}

TEST_F(Sitzung, schlechte_Infodateien) {
    const std::string Lesefehler = "Tonkartei | Es ist ein Fehler beim öffnen der Informationsdatei aufgetreten! | i";
    const std::string bytes = Sammlung{}.bytes();
    const Sammlung zu_viele{.Lieder = std::vector<Probelied>(5001), .Grenze = 7};
    Sammlung Kategorien21;
    Kategorien21.Kategorien.assign(21, "K");
    struct Fall {
        const char* name;
        std::string bytes, ereignis;
    };
    for (const Fall& f : {
             Fall{"leer", "", Lesefehler},
             Fall{"nur der Titel", "Tonkartei\r\n", Lesefehler},
             Fall{"21 Kategorien", Kategorien21.bytes(), "Laufzeitfehler | 9"},
             Fall{"256 Kategorien", ersetzt(bytes, " 6 \r\n", " 256 \r\n"), "Laufzeitfehler | 6"},
             Fall{"-1 Kategorien", ersetzt(bytes, " 6 \r\n", "-1 \r\n"), "Laufzeitfehler | 6"},
             Fall{"21 in einem Schema", ersetzt(bytes, " 1 \r\nSchema 9", " 21 \r\nSchema 9"), "Laufzeitfehler | 9"},
             Fall{"5001 Lieder", zu_viele.bytes(), "Laufzeitfehler | 9"},
             Fall{"zu große Anzahl", ersetzt(bytes, " 0 \r\nAnna", " 2147483648 \r\nAnna"), "Laufzeitfehler | 6"},
             Fall{"zu große Liederzahl", ersetzt(bytes, " 3 \r\n 0 \r\nAnna", " 99999999999 \r\n 0 \r\nAnna"),
                  "Laufzeitfehler | 6"},
             Fall{"zu große Kategorie", ersetzt(bytes, " 2 \r\nZug", " 256 \r\nZug"), "Laufzeitfehler | 6"},
         }) {
        SCOPED_TRACE(f.name);
        ordner.datei("a/MP3_Info.MDB", f.bytes);
        öffnen(a);
        auto ablauf = geschehen();
        std::erase(ablauf, "Fortschritt | Datenbank laden...");
        EXPECT_EQ(ablauf, Zeilen{f.ereignis});
        const bool bruch = f.ereignis.starts_with("Laufzeitfehler");
        EXPECT_EQ(b->bereit(), bruch ? "ende" : "meldung");
        if (!bruch) hand("antwort OK");
        EXPECT_EQ(b->Ende_abwarten(), bruch ? 1 : 0);
        EXPECT_EQ(mdb(), f.bytes);
        EXPECT_FALSE(ordner.da("a/MP3_Info.DBG") || ordner.da("a/MP3_Bak.MDB"));
    }
}

// The bounds themselves are no error, and every byte of a name comes back.
TEST_F(Sitzung, bis_an_die_Grenzen) {
    Sammlung s;
    s.Kategorien.assign(20, "K");
    s.Lieder.assign(5000, {"  , \"A\"", "B,,", 2147483647, 3, 20, "23", "59", "59"});
    std::string alle;
    for (int n = 1; n < 256; ++n)
        if (n != '\r' && n != '\n') alle += static_cast<char>(n);
    s.Lieder[1].Titel = alle;
    s.Lieder[2].Artist = std::string("\0x", 2);
    s.Lieder[3] = {"", "", -2147483647, 0, 1, "0", "0", "0"};
    sammlung("a", s);
    öffnen(a);
    EXPECT_EQ(b->text("Tonkartei.Liste_Anzahl"), "5000");
    beenden();
    EXPECT_EQ(mdb(), s.bytes());
}

}  // namespace
}  // namespace tonkartei
