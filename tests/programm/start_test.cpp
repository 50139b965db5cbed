// From the start to the first collection, what was stored, and the keys: what goes better by tables than by scenes.
#include <functional>

#include "programm/buehne.hpp"

namespace tonkartei {
namespace {

class Start : public Bühne {
protected:
    std::string a = sammlung("a", {.Schemas = 5});
};

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

// A start that is given up leaves the settings as they were, whatever was done in it.
TEST_F(Start, aufgegebener_Start_schreibt_nichts) {
    for (const char* weise : {"klick Splash.Button(4)", "schließe Splash", "schließe Tonkartei",
                              "klick Tonkartei.MP_Beenden", "schließe Tonkartei extern"}) {
        SCOPED_TRACE(weise);
        std::filesystem::remove_all(ordner.pfad("wurzel"));
        starten({.setze = zuletzt({ordner.pfad("weg/"), a})});
        ASSERT_EQ(b->bereit_name(), "Splash");
        hände({"klick Tonkartei.Papierkorb_löschen", "lage Tonkartei 150 150"});
        const auto vorher = b->registrierung();
        hand(weise);
        EXPECT_EQ(geschehen(), Zeilen{"ende"});
        EXPECT_EQ(b->Ende_abwarten(), 0);
        starten({});
        EXPECT_EQ(b->registrierung(), vorher);
    }
}

TEST_F(Start, minimieren_und_Tray) {
    const auto zu_sehen = [this] { return b->fenster("Tonkartei")["sichtbar"].get<bool>(); };
    const auto tray = [this] { return b->zeige("Tonkartei.SysTray")["sichtbar"].get<bool>(); };
    struct Fall {
        int weise;
        bool immer;
        bool tray_normal, tray_klein, fenster_klein;
    };
    for (const Fall& f :
         {Fall{1, false, false, false, true}, Fall{2, false, false, true, false}, Fall{3, false, false, true, true},
          Fall{1, true, true, true, true}, Fall{2, true, true, true, false}, Fall{3, true, true, true, true}}) {
        SCOPED_TRACE(std::to_string(f.weise) + (f.immer ? " immer" : ""));
        öffnen(a, "I",
               {"Fenster minimieren=" + std::to_string(f.weise),
                std::string("System-Tray-Symbol immer sichtbar=") + (f.immer ? "True" : "False")});
        EXPECT_EQ(tray(), f.tray_normal);
        hand("zustand Tonkartei minimiert");
        EXPECT_EQ(tray(), f.tray_klein);
        EXPECT_EQ(zu_sehen(), f.fenster_klein);
        hand(f.tray_klein ? "klick Tonkartei.SysTray" : "zustand Tonkartei normal");
        EXPECT_EQ(b->fenster("Tonkartei")["zustand"], "normal");
        EXPECT_TRUE(zu_sehen());
        EXPECT_EQ(tray(), f.tray_normal);
    }
    öffnen(a, "MI", {"Fenster minimieren=2", "System-Tray-Symbol immer sichtbar=False"});
    EXPECT_FALSE(zu_sehen()) << "a minimised start stays hidden";
    EXPECT_TRUE(tray());
}

TEST_F(Start, Schalter_und_Wahlen_werden_gemerkt) {
    struct Fall {
        const char *eintrag, *schlüssel, *nachher;
    };
    const std::vector<Fall> fälle{{"DblClk(2)", "Liste-Doppelklick", "2"},
                                  {"Liste_aktualisieren(3)", "Listensuche_Anzahl_Buchstaben", "3"},
                                  {"Listensuche_unvisible", "bei_Listensuche_sichtbar", "False"},
                                  {"Menü_Liste2_animiert", "Alben-Liste animiert", "False"},
                                  {"Katrechts(2)", "Kategorie-Rechtsklick", "2"},
                                  {"Kategorien_merken", "Kategorien merken", "True"},
                                  {"Kat_wechsel_bestätigen", "Kategorie wechsel bestätigen", "False"},
                                  {"Fenster_minimieren(3)", "Fenster minimieren", "3"},
                                  {"Winamp_Mini_verstecken", "WinAmp verstecken wenn DB minimiert", "False"},
                                  {"Systray_always", "System-Tray-Symbol immer sichtbar", "False"},
                                  {"Position_merken", "Position merken", "False"},
                                  {"Papierkorb_löschen", "löschen in den Papierkorb", "False"},
                                  {"WinAmp_FS_Lautstärke", "WinAmp Fernsteuerung Lautstärke", "True"},
                                  {"Menü_WinAmp_verstecken", "WinAmp verstecken", "True"},
                                  {"Menü_WinAmp_Beenden(2)", "WinAmp beenden", "2"}};
    öffnen(a);
    const auto marken = [&] {
        std::string ergebnis;
        const std::function<void(const nlohmann::json&)> gehen = [&](const nlohmann::json& einträge) {
            for (const auto& e : einträge) {
                if (e["haken"] == true) ergebnis += e["name"].get<std::string>() + " ";
                if (e.contains("einträge")) gehen(e["einträge"]);
            }
        };
        gehen((*b)("menü").front()["menü"]);
        return ergebnis;
    };
    for (const Fall& f : fälle) {
        // Nothing is written during the run; and of several entries one alone is marked.
        const std::string vorher = marken();
        hand(std::string("klick Tonkartei.") + f.eintrag);
        EXPECT_NE(marken(), vorher) << f.eintrag;
        EXPECT_EQ(wert(f.schlüssel), "-") << f.schlüssel;
    }
    const std::string am_Ende = marken();
    hand("schließe Tonkartei extern");
    EXPECT_EQ(b->Ende_abwarten(), 0);
    öffnen(a);
    for (const Fall& f : fälle) EXPECT_EQ(wert(f.schlüssel), f.nachher) << f.schlüssel;
    EXPECT_EQ(marken(), am_Ende);
}

TEST_F(Start, falsche_Einstellungen) {
    starten({.setze = {"geöffnete Datenbanken\\Anzahl=11"}});
    EXPECT_EQ(geschehen(), Zeilen{"Laufzeitfehler | 9"});
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

TEST_F(Start, Album_Titel_Lage_und_Bewegung) {
    ordner.datei("a/MP3_Info.ALB",
                 "Tonkartei\r\nV 1.02 16\r\nDatenbank Alben-Verwaltung\r\n 2 \r\n"
                 " 0 \r\nA\r\n 2001 \r\nT\r\nEins\r\n 0 \r\nB\r\n 2001 \r\nT\r\nZwei\r\n");
    const auto lage = [this](const char* name) { return b->zeige(std::string("Tonkartei.") + name); };
    const auto pausen_nach = [this](const std::string& zeile) {
        b->protokoll();
        hand(zeile);
        int ms = 0;
        for (const auto& eintrag : b->protokoll())
            if (eintrag["art"] == "pause") ms += eintrag["ms"].get<int>();
        return ms;
    };
    for (const bool animiert : {true, false}) {
        öffnen(a, "I", {std::string("Alben-Liste animiert=") + (animiert ? "True" : "False")});
        hand("wähle Tonkartei.Datenbank_Modus 1");
        EXPECT_EQ(pausen_nach("wähle Tonkartei.Liste 0"), animiert ? 150 : 0);
        EXPECT_EQ(pausen_nach("wähle Tonkartei.Liste 1"), 0) << "it is there already";
        for (const char* größe : {"18000 12000", "13000 9000"}) {
            hand(std::string("größe Tonkartei ") + größe);
            const auto unten = lage("Liste2");
            const int oben = lage("Liste")["oben"], höhe = lage("Liste")["höhe"];
            EXPECT_EQ(unten["oben"].get<int>(), oben + höhe / 5);
            EXPECT_EQ(unten["oben"].get<int>() + unten["höhe"].get<int>(), oben + höhe);
            EXPECT_EQ(unten["breite"], lage("Liste")["breite"]);
        }
        EXPECT_EQ(pausen_nach("wähle Tonkartei.Datenbank_Modus 0"), animiert ? 150 : 0);
    }
}

// The letter behind a single "&", small; "" without one.
std::string Zugriffszeichen(const std::string& text) {
    for (std::size_t i = 0; i + 1 < text.size(); ++i) {
        if (text[i] != '&') continue;
        const char c = text[++i];
        if (c != '&')
            return c >= 'A' && c <= 'Z' ? std::string(1, static_cast<char>(c + 32)) : text.substr(i, c < 0 ? 2 : 1);
    }
    return {};
}

// Alt and a letter mean one thing in a window.
TEST_F(Start, Zugriffstasten_sind_eindeutig) {
    starten();
    for (const std::string fenster : {"Tonkartei",
                                      "Splash",
                                      "Datenbank_öffnen",
                                      "Kategorie_Wahl",
                                      "Kategorie_bearbeiten",
                                      "Verzeichnis_add",
                                      "neue_Lieder_Liste",
                                      "Album_wählen",
                                      "Infofenster",
                                      "MP3_Tag_ändern",
                                      "Datum_eingeben",
                                      "DB_add_start_Kategorien",
                                      "DBadd_Kategorien",
                                      "Playlist",
                                      "Alben_Verwaltung",
                                      "Album_importieren",
                                      "Backup_Portionen",
                                      "Vergleichsergebnis",
                                      "Live_abgleich",
                                      "LA_Ignorieren",
                                      "auflösen",
                                      "Kategorie_vergleich"}) {
        std::map<std::string, Zeilen> tasten;
        const auto merken = [&](const nlohmann::json& text, const std::string& name) {
            if (const std::string taste = Zugriffszeichen(text); !taste.empty()) tasten[taste].push_back(name);
        };
        const nlohmann::json elemente = (*b)("elemente " + fenster).front().at("elemente");
        for (const std::string name : elemente) {
            const auto bild = b->zeige(fenster + "." + name);
            const std::string art = bild["art"];
            // What the user typed or chose is no caption, and entries of menus have their letters to themselves.
            if (!bild["sichtbar"] || art == "text" || art == "liste" || art == "auswahl" || art == "menü") continue;
            if (bild.contains("text")) merken(bild["text"], name);
        }
        const nlohmann::json menü = (*b)("menü").front().at("menü");
        if (fenster == "Tonkartei")
            for (const auto& eintrag : menü) merken(eintrag["text"], eintrag["name"]);
        EXPECT_FALSE(tasten.empty()) << fenster;
        // The album manager's commands for albums and those for titles have three letters in common, ever since.
        const std::string doppelt = fenster == "Alben_Verwaltung" ? "lns" : "";
        for (const auto& [taste, namen] : tasten)
            EXPECT_EQ(namen.size(), doppelt.find(taste) == std::string::npos ? 1U : 2U)
                << fenster << " Alt+" << taste << ": " << nlohmann::json(namen);
    }
}

}  // namespace
}  // namespace tonkartei
