// From the start to the first collection: parameters, the start window's choice, placing.
#include "programm/buehne.hpp"

namespace tonkartei {
namespace {

class Start : public Bühne {
protected:
    std::string a = sammlung("a", {.Schemas = 5});
    bool läuft() const { return b->bereit() == "schleife"; }
};

TEST_F(Start, zweite_Instanz_endet_mit_einer_Meldung) {
    starten({.setze = zuletzt({a}), .zweite_Instanz = true});
    EXPECT_EQ(geschehen(), (Zeilen{"Tonkartei|Dieses Programm läuft bereits!|i"}));
    EXPECT_TRUE(b->fenster("Splash").is_null());
    hand("antwort OK");
    EXPECT_EQ(b->Ende_abwarten(), 0);
    EXPECT_FALSE(ordner.da("a/MP3_Info.DBG"));
}

TEST_F(Start, Parameter) {
    struct Fall {
        const char* zeile;
        bool minimiert = false, autoplay = false, mittig = false;
        int schema = 0;  // whose boxes are chosen
    };
    // The stored position is (300, 450); scheme n holds category n % 6 + 1.
    for (const Fall& f : {Fall{""}, Fall{"m", true}, Fall{"Z", false, false, true}, Fall{"RAM", true, true},
                          Fall{"mra", true, true}, Fall{"zM", true, false, true}, Fall{"KS3", false, false, false, 3},
                          Fall{"ks3", false, false, false, 3}, Fall{"KS"}, Fall{"KS7"}, Fall{"KS0"}, Fall{"KSx"},
                          Fall{"KS51", false, false, false, 5}, Fall{"KS5RA", false, true, false, 5}}) {
        SCOPED_TRACE(f.zeile);
        öffnen(a, f.zeile, {"PositionX=300", "PositionY=450", "Fenster minimieren=1"});
        EXPECT_EQ(geschehen(), Zeilen{"Fortschritt|Datenbank laden..."});
        const auto fenster = b->fenster("Tonkartei");
        EXPECT_EQ(fenster["zustand"], f.minimiert ? "minimiert" : "normal");
        const int breite = fenster["breite"], höhe = fenster["höhe"];
        EXPECT_EQ(fenster["links"], f.mittig ? (1280 * 15 - breite) / 2 : 300);
        EXPECT_EQ(fenster["oben"], f.mittig ? (1024 * 15 - höhe) / 2 : 450);
        EXPECT_EQ(b->zeige("Tonkartei.Autoplay")["wert"], f.autoplay);
        for (int k = 1; k <= 6; ++k)
            EXPECT_EQ(b->zeige("Tonkartei.zeige_Kategorie(" + std::to_string(k) + ")")["wert"],
                      k == (f.schema == 0 ? 1 : f.schema % 6 + 1))
                << k;
        hand("schließe Tonkartei");
    }
    öffnen(a, "I");
    hand("klick Tonkartei.zeige_Parameter");
    EXPECT_TRUE(geschehen().back().ends_with("anneinander gereiht werden. Zum Beispiel:\n\nTonkartei RAM|i"));
}

TEST_F(Start, Platz_auf_dem_Schirm) {
    öffnen(a);
    const auto erstes = b->fenster("Tonkartei");
    const int rechts = 1280 * 15 - erstes["breite"].get<int>(), unten = 1024 * 15 - erstes["höhe"].get<int>();
    // Kept only when the window lies wholly on the screen, edges included.
    for (const auto& [x, y, merken, gilt] : {std::tuple{rechts, unten, true, true},
                                             {0, 0, true, true},
                                             {rechts + 1, 0, true, false},
                                             {0, unten + 1, true, false},
                                             {-1, 0, true, false},
                                             {0, -1, true, false},
                                             {15, 15, false, false},
                                             {2147483647, 0, true, false}}) {
        SCOPED_TRACE(std::to_string(x) + " " + std::to_string(y));
        öffnen(a, "I",
               {"PositionX=" + std::to_string(x), "PositionY=" + std::to_string(y),
                std::string("Position merken=") + (merken ? "True" : "False")});
        EXPECT_EQ(b->fenster("Tonkartei")["links"], gilt ? x : rechts / 2);
        EXPECT_EQ(b->fenster("Tonkartei")["oben"], gilt ? y : unten / 2);
    }
}

TEST_F(Start, Ende_merkt_die_Lage_nur_im_normalen_Zustand) {
    öffnen(a);
    hände({"lage Tonkartei 345 465", "klick Tonkartei.MP_Beenden"});
    öffnen(a, "M", {"Fenster minimieren=1"});
    EXPECT_EQ(wert("PositionX") + "," + wert("PositionY"), "345,465");
    // Minimised as it ends: the place of before stays.
    hände({"lage Tonkartei 30 60", "schließe Tonkartei"});
    EXPECT_EQ(b->Ende_abwarten(), 0);
    öffnen(a);
    EXPECT_EQ(wert("PositionX") + "," + wert("PositionY"), "345,465");
}

TEST_F(Start, Vorschau_und_Wahl_des_Startfensters) {
    const std::string gut =
        sammlung("gut", {.Lieder = {{"A", "B", 0, 1500, 2, "1", "59", "59"}, {"C", "D", 0, 1500, 9, "22", "0", "1"}}});
    const std::string groß =
        sammlung("groß", {.Lieder = {{"A", "B", 0, 5, 2, "23", "59", "59"}, {"C", "D", 0, 5, 2, "7", "30", "1"}}});
    const std::string alt = sammlung("alt", {.Version = "V 1.02 15"});
    const std::string leer = ordner.ordner("leer");
    const std::string halb = sammlung("halb");
    ordner.datei("halb/MP3_Info.MDB", mdb("halb").substr(0, 400));
    starten({.setze = zuletzt({ordner.pfad("weg/"), gut, groß, alt, leer, halb})});
    ASSERT_EQ(b->bereit_name(), "Splash");
    EXPECT_EQ(b->text("Splash.Status"), "letzte geöffnete Datenbank nicht gefunden!");
    EXPECT_EQ((*b)("fokus").front()["fokus"], "Splash.Button(1)");

    const std::string unlesbar = "Es können keine Informationen gelesen werden (evtl. lte Version).";
    const std::vector<std::string> texte{"Kein Zugriff auf die gewählte Datenbank!",
                                         "Anzahl Lieder: 2; Anzahl Kategorien: 6; Größe: 2 MB; Dauer: 24:00",
                                         "Anzahl Lieder: 2; Anzahl Kategorien: 6; Größe: 0 MB; Dauer: 31h",
                                         unlesbar,
                                         "In diesem Verzeichnis ist keine Datenbank vorhanden!",
                                         unlesbar};
    for (std::size_t i = 0; i < texte.size(); ++i) {
        hand("wähle Splash.Liste " + std::to_string(i));
        EXPECT_EQ(b->text("Splash.Status"), texte[i]) << i;
    }
    // Read once only.
    ordner.datei("gut/MP3_Info.MDB", "x");
    hände({"wähle Splash.Liste 1"});
    EXPECT_EQ(b->text("Splash.Status"), texte[1]);
    EXPECT_EQ(geschehen(), Zeilen{});

    hände({"wähle Splash.Liste 0", "klick Splash.Button(1)"});
    EXPECT_EQ(b->text("Splash.Status"), "öffne Datenbank...");
    hand("antwort OK");
    EXPECT_EQ(b->bereit_name(), "Splash");
    hände({"klick Splash.Button(2)", "abbrechen"});
    EXPECT_EQ(b->bereit_name(), "Splash");
    hände({"wähle Splash.Liste 2", "klick Splash.Button(1)"});
    EXPECT_EQ(geschehen(),
              (Zeilen{"Datenbank öffnen|Diese Datenbank existiert nicht mehr, oder es ist im moment kein Zugriff darauf "
                      "möglich.|i",
                      "Ordner|Verzeichnis der Tonkartei:", "Fortschritt|Datenbank laden..."}));
    ASSERT_TRUE(läuft());
    EXPECT_EQ(b->text("Tonkartei.Liste_Dauer"), "31h");
    EXPECT_EQ(b->zeilen("Tonkartei.Datenbank"), (Zeilen{groß, ordner.pfad("weg/"), gut, alt, leer, halb}));
}

// A start that is given up leaves the settings as they were, whatever was done in it.
TEST_F(Start, aufgegebener_Start_schreibt_nichts) {
    const std::string weg = ordner.pfad("weg/");
    for (const char* weise : {"klick Splash.Button(4)", "schließe Splash", "schließe Tonkartei",
                              "klick Tonkartei.MP_Beenden", "schließe Tonkartei extern"}) {
        SCOPED_TRACE(weise);
        std::filesystem::remove_all(ordner.pfad("wurzel"));
        starten({.setze = zuletzt({weg, a})});
        ASSERT_EQ(b->bereit_name(), "Splash");
        hände({"klick Tonkartei.Papierkorb_löschen", "lage Tonkartei 150 150"});
        const auto vorher = b->registrierung();
        hand(weise);
        EXPECT_EQ(geschehen(), Zeilen{"ende"});
        EXPECT_EQ(b->Ende_abwarten(), 0);
        starten({});
        EXPECT_EQ(b->registrierung(), vorher);
        EXPECT_EQ(mdb(), (Sammlung{.Schemas = 5}.bytes()));
    }
}

// The first collection that fails or is declined ends the program.
TEST_F(Start, erste_Datenbank_abgelehnt) {
    const std::string leer = ordner.ordner("leer");
    öffnen(leer);
    EXPECT_EQ(geschehen(), Zeilen{"Datenbank erstellen|In folgendem Verzeichnis existiert noch keine Datenbank:\n\n" + leer +
                                  "\n\nSoll dort eine erstellt werden?|?*Ja/Nein"});
    hand("antwort Nein");
    EXPECT_EQ(b->Ende_abwarten(), 0);
    EXPECT_TRUE(std::filesystem::is_empty(leer));

    // Yes: an empty one with the six categories, of which nothing is on the disk until it is saved.
    öffnen(leer);
    hand("antwort Ja");
    ASSERT_TRUE(läuft());
    EXPECT_TRUE(std::filesystem::is_empty(leer));
    EXPECT_EQ(b->text("Tonkartei.zeige_Kategorie(6)"), "Techno");
    beenden();
    EXPECT_TRUE(mdb("leer").starts_with("Tonkartei\r\nV 1.02 16\r\n 6 \r\nAlle\r\n"));
    EXPECT_TRUE(mdb("leer").ends_with(" 1 \r\n 0 \r\n 0 \r\n"));
}

TEST_F(Start, neue_Datenbank_im_Startfenster) {
    starten();
    ASSERT_EQ(b->bereit_name(), "Splash");
    hände({"klick Splash.Button(3)", "antwort OK", "pfad " + Bediener::zitiert(ordner.pfad()), "eingabe a"});
    EXPECT_EQ(b->bereit(), "meldung");
    hände({"antwort OK", "klick Splash.Button(3)", "antwort OK", "pfad " + Bediener::zitiert(ordner.pfad()), "eingabe neu"});
    ASSERT_TRUE(läuft());
    const std::string frage =
        "Datenbank erstellen|Geben sie bitte das Ober-Verzeichnis an, in dem die neue Datenbank "
        "erstellt werden soll.|i";
    const std::string name = "Eingabe|Bitte geben sie den Namen der neuen Datenbank an.|";
    EXPECT_EQ(geschehen(), (Zeilen{frage, "Ordner|Verzeichnis der neuen Tonkartei:", name,
                                   "Tonkartei|Es ist ein Fehler beim anlegen der Datenbank aufgetreten!\n\nEventuell "
                                   "existiert das Verzeichnis\n\n" +
                                       ordner.pfad("a") + "\n\nbereits.|i",
                                   frage, "Ordner|Verzeichnis der neuen Tonkartei:", name}));
    EXPECT_EQ(b->zeilen("Tonkartei.Datenbank"), Zeilen{ordner.pfad("neu/")});
    beenden();
    EXPECT_NE(mdb("neu"), "(fehlt)");
}

}  // namespace
}  // namespace tonkartei
