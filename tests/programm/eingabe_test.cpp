// Bad input: a word or the run-time error, never a crash, a hang or a changed file.
#include "programm/buehne.hpp"

namespace tonkartei {
namespace {

class Eingabe : public Bühne {
protected:
    static std::string ersetzt(std::string text, const std::string& was, const std::string& womit) {
        const auto stelle = text.find(was);
        EXPECT_NE(stelle, std::string::npos) << was;
        return text.replace(stelle, was.size(), womit);
    }
};

TEST_F(Eingabe, schlechte_Infodateien) {
    const std::string Lesefehler = "Tonkartei|Es ist ein Fehler beim öffnen der Informationsdatei aufgetreten!|i";
    const std::string fehlerhaft =
        "Tonkartei|Die Informationsdatei MP3_Info.MDB ist fehlerhaft!\n\nKontaktieren sie den Autor, um eventuell noch die "
        "Daten zu retten.\n\ntonkartei@example.org|i";
    const Sammlung gut;
    const std::string bytes = gut.bytes();
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
             Fall{"falscher Titel", ersetzt(bytes, "Tonkartei", "tonkartei"), fehlerhaft},
             Fall{"Bytes einer anderen Datei", std::string(5000, '\xff'), fehlerhaft},
             Fall{"21 Kategorien", Kategorien21.bytes(), "Laufzeitfehler|9"},
             Fall{"256 Kategorien", ersetzt(bytes, " 6 \r\n", " 256 \r\n"), "Laufzeitfehler|6"},
             Fall{"-1 Kategorien", ersetzt(bytes, " 6 \r\n", "-1 \r\n"), "Laufzeitfehler|6"},
             Fall{"21 in einem Schema", ersetzt(bytes, " 1 \r\nSchema 9", " 21 \r\nSchema 9"), "Laufzeitfehler|9"},
             Fall{"5001 Lieder", zu_viele.bytes(), "Laufzeitfehler|9"},
             Fall{"zu große Anzahl", ersetzt(bytes, " 0 \r\nAnna", " 2147483648 \r\nAnna"), "Laufzeitfehler|6"},
             Fall{"zu große Liederzahl", ersetzt(bytes, " 3 \r\n 0 \r\nAnna", " 99999999999 \r\n 0 \r\nAnna"),
                  "Laufzeitfehler|6"},
             Fall{"zu große Kategorie", ersetzt(bytes, " 2 \r\nZug", " 256 \r\nZug"), "Laufzeitfehler|6"},
         }) {
        SCOPED_TRACE(f.name);
        const std::string a = ordner.ordner("a");
        ordner.datei("a/MP3_Info.MDB", f.bytes);
        öffnen(a);
        auto ablauf = geschehen();
        std::erase(ablauf, "Fortschritt|Datenbank laden...");
        EXPECT_EQ(ablauf, Zeilen{f.ereignis});
        const bool bruch = f.ereignis.starts_with("Laufzeitfehler");
        EXPECT_EQ(b->bereit(), bruch ? "ende" : "meldung");
        if (!bruch) hand("antwort OK");
        EXPECT_EQ(b->Ende_abwarten(), bruch ? 1 : 0);
        EXPECT_EQ(mdb(), f.bytes);
        EXPECT_FALSE(ordner.da("a/MP3_Info.DBG"));
        EXPECT_FALSE(ordner.da("a/MP3_Bak.MDB"));
    }
}

// The bounds themselves are no error, and every byte of a name comes back.
TEST_F(Eingabe, bis_an_die_Grenzen) {
    Sammlung s;
    s.Kategorien.assign(20, "K");
    s.Lieder.assign(5000, {"  , \"A\"", "B,,", 2147483647, 3, 20, "23", "59", "59"});
    std::string alle;
    for (int n = 1; n < 256; ++n)
        if (n != '\r' && n != '\n') alle += static_cast<char>(n);
    s.Lieder[1].Titel = alle;
    s.Lieder[2].Artist = std::string("\0x", 2);
    s.Lieder[3] = {"", "", -2147483647, 0, 1, "0", "0", "0"};
    const std::string a = sammlung("a", s);
    öffnen(a);
    EXPECT_EQ(b->text("Tonkartei.Liste_Anzahl"), "5000");
    beenden();
    EXPECT_EQ(mdb(), s.bytes());
}

TEST_F(Eingabe, falsche_Einstellungen) {
    const std::string a = sammlung("a");
    starten({.setze = {"geöffnete Datenbanken\\Anzahl=11"}});
    EXPECT_EQ(geschehen(), Zeilen{"Laufzeitfehler|9"});
    EXPECT_EQ(b->Ende_abwarten(), 1);
    std::filesystem::remove_all(ordner.pfad("wurzel"));
    // What does not fit its kind keeps the default.
    öffnen(a, "",
           {"Fenster minimieren=300", "Kategorien=99999999999", "löschen in den Papierkorb=true",
            "Anzahl-Zeit=", "WinAmp=  ", "Display\\Datenport=5"});
    EXPECT_EQ(wert("Display\\Datenport"), "888");
    beenden();
    starten();
    for (const auto& [schlüssel, geblieben] : {std::pair{"Fenster minimieren", "2"},
                                               {"Kategorien", "1"},
                                               {"löschen in den Papierkorb", "False"},
                                               {"Anzahl-Zeit", "10"}})
        EXPECT_EQ(wert(schlüssel), geblieben) << schlüssel;
}

TEST_F(Eingabe, Zugriffsdatei_nicht_zu_schreiben) {
    const std::string a = sammlung("a");
    starten({.setze = zuletzt({ordner.pfad("weg/")})});
    hände({"schreibschutz " + a + " an", "klick Splash.Button(2)", "pfad " + Bediener::zitiert(a)});
    EXPECT_EQ(geschehen().back(),
              "Zugriffsdatei schreiben|Es ist ein Fehler beim Schreiben der Datenbank-Zugriffsdatei aufgetreten!|i");
    hand("antwort OK");
    EXPECT_EQ(b->bereit(), "schleife");
    EXPECT_EQ(b->zeilen("Tonkartei.Liste").size(), 3U);
}

// A start window's list without a chosen line, and the commands of the main window while it is up.
TEST_F(Eingabe, während_der_ersten_Wahl) {
    const std::string a = sammlung("a"), zweite = sammlung("zweite");
    starten({.setze = zuletzt({ordner.pfad("weg/"), a})});
    hände({"klick Splash.Button(1)", "wähle Splash.Liste 1", "wähle Splash.Liste -1", "klick Splash.Button(1)"});
    EXPECT_EQ(b->bereit_name(), "Splash");
    hand("klick Tonkartei.Menü_schreibe_Datenbank");
    EXPECT_EQ(b->meldung(), " Die Datenbank kann nicht gespeichert werden. Eventuell ist keine geöffnet?");
    hände({"antwort OK", "klick Tonkartei.Lieder_hinzufügen_Verzeichnis", "klick Tonkartei.Lied_starten",
           "setze Tonkartei.Schnellsuche x", "klick Tonkartei.sortieren(1)", "uhr +2000"});
    EXPECT_EQ(b->bereit_name(), "Splash");
    // The main window's own way to a collection ends the choice.
    hände({"klick Tonkartei.öffne_Datenbank", "setze Datenbank_öffnen.Pfad " + Bediener::zitiert(zweite),
           "klick Datenbank_öffnen.Ok"});
    EXPECT_EQ(b->bereit(), "schleife");
    EXPECT_TRUE(b->fenster("Splash").is_null());
    EXPECT_EQ(b->zeilen("Tonkartei.Datenbank")[0], zweite);
    EXPECT_TRUE(ordner.da("zweite/MP3_Info.DBG"));
    beenden();
    EXPECT_EQ(mdb("zweite") + mdb("a"), Sammlung{}.bytes() + Sammlung{}.bytes());
}

}  // namespace
}  // namespace tonkartei
