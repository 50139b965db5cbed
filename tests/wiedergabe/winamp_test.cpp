// One player: messages, the search for its window, what is kept of it, its start; the menu commands.
#include "wiedergabe/buehne.hpp"

namespace tonkartei {
namespace {

TEST(Fenstersuche, welches_Fenster_gilt) {
    const struct {
        const char* was;
        std::vector<std::pair<Text, int>> fenster;  // class, and the window that it is a child of, -1 the desktop
        int gefunden;                               // -1 none
    } fälle[] = {
        {"no window at all", {}, -1},
        {"none of the class", {{"Editor", -1}}, -1},
        {"the last one wins", {{"Tonkartei", -1}, {"Tonkartei", -1}, {"Editor", -1}}, 1},
        {"a part is enough", {{"die TonkarteiWA1", -1}, {"Editor", -1}}, 0},
        {"another case is another class", {{"tonkartei", -1}, {"TONKARTEI", -1}}, -1},
        {"below another window it does not count", {{"Editor", -1}, {"Tonkartei", 0}}, -1},
        {"nor does it replace one found above", {{"Tonkartei", -1}, {"Tonkartei", 0}, {"Tonkartei", 1}}, 0},
        {"only 254 characters are read", {{Text(254, 'x') + "Tonkartei", -1}}, -1},
    };
    for (const auto& fall : fälle) {
        Bühne b;
        std::vector<Hwnd> griffe;
        for (const auto& [klasse, elter] : fall.fenster) {
            Spieler& neu = b.fenster.neues_Fenster(klasse);
            griffe.push_back(neu.Griff);
            if (elter >= 0) neu.Elter = griffe[static_cast<std::size_t>(elter)];
        }
        EXPECT_EQ(b.Spiel.Suche.Fenster_suchen_global("Tonkartei"),
                  fall.gefunden < 0 ? 0 : griffe[static_cast<std::size_t>(fall.gefunden)])
            << fall.was;
        EXPECT_EQ(b.ansicht.Ereignisrunden, static_cast<int>(griffe.size())) << fall.was << ": events at each window";
    }
    Bühne b;
    b.fenster.neues_Fenster("Tonkartei");
    b.ansicht.Runde = [&] { b.fenster.Fenster_stirbt("Tonkartei"); };
    EXPECT_EQ(b.Spiel.Suche.Fenster_suchen_global("Tonkartei"), 0) << "it dies meanwhile";
}

TEST(WinAmp, der_Takt_folgt_dem_Spieler) {
    Bühne b;
    auto& w = b.Spiel.Spieler;
    Text folge;
    b.Spiel.Takt.Anzeige_Schritt.verbinden([&] { folge += "Anzeige"; });
    b.Spiel.Takt.Autoplay_Schritt.verbinden([&] { folge += "Autoplay " + Zahltext(w.WinAmp_Status) + " "; });
    b.Spiel.Takt.Timer.auslösen();
    EXPECT_FALSE(w.WinAmp_da);
    EXPECT_EQ(folge, "Autoplay 3 Anzeige") << "nothing plays as far as anybody knows";
    Spieler& spieler = b.fenster.neues_Fenster(WinAmp_Klasse);
    for (const auto& [antwort, status] : {std::pair{1, 1}, {0, 3}, {2, 3}, {-1, 3}, {3, 2}}) {
        spieler.Status = antwort;
        b.Spiel.Takt.Timer_Timer();
        EXPECT_EQ(w.WinAmp_Status, status) << antwort;
    }
    // One that hangs is as last seen; one that is gone keeps its status but is not there.
    spieler.Position = 1500;
    spieler.Länge = 200;
    EXPECT_EQ(w.Position() + w.Länge(), 1700);
    spieler.hängt = true;
    spieler.Status = spieler.Position = spieler.Länge = 0;
    b.Spiel.Takt.Timer_Timer();
    EXPECT_TRUE(w.WinAmp_da);
    EXPECT_EQ(w.WinAmp_Status, 2);
    EXPECT_EQ(w.Position() + w.Länge(), 1700);
    b.fenster.Fenster_stirbt(WinAmp_Klasse);
    EXPECT_EQ(b.Spiel.Steuerung.WinAmp_Status_lesen(w.WinAmp_Hwnd), 3) << "killed: an answer all the same";
    EXPECT_EQ(w.Position(), 0);
    b.Spiel.Takt.Timer_Timer();
    EXPECT_FALSE(w.WinAmp_da);
    EXPECT_EQ(w.WinAmp_Status, 2);
    EXPECT_TRUE(b.nehmen().empty()) << "looking changes nothing";
    b.einstellungen.WinAmp_verstecken = true;
    b.fenster.neues_Fenster(WinAmp_Klasse);
    for (int i = 0; i < 2; ++i) b.Spiel.Takt.Timer_Timer();
    EXPECT_EQ(b.nehmen(), Aufzeichnung{versteckt}) << "a new one is hidden once";
}

TEST(WinAmp, Hauptfenster_minimiert_und_normal) {
    const struct {
        bool da, versteckt, immer_verstecken, minimiert_verstecken;
        Aufzeichnung minimiert, normal;        // what is done to the window
        bool danach_minimiert, danach_normal;  // hidden afterwards
    } fälle[] = {
        {true, false, false, true, {versteckt}, {}, true, false}, {true, false, false, false, {}, {}, false, false},
        {true, true, false, true, {}, {gezeigt}, true, false},    {true, true, true, true, {}, {}, true, true},
        {true, false, true, true, {versteckt}, {}, true, false},  {false, true, false, true, {}, {}, true, true},
    };
    for (const auto& fall : fälle)
        for (const bool minimiert : {true, false}) {
            SCOPED_TRACE(std::to_string(&fall - fälle) + (minimiert ? " minimised" : " normal"));
            Bühne b;
            if (fall.da) b.Spieler_läuft();
            b.einstellungen.WinAmp_verstecken = fall.immer_verstecken;
            b.einstellungen.WinAmp_verstecken_minimiert = fall.minimiert_verstecken;
            b.Spiel.Spieler.WinAmp_versteckt = fall.versteckt;
            if (minimiert)
                b.Spiel.Spieler.Hauptfenster_minimiert();
            else
                b.Spiel.Spieler.Hauptfenster_normal();
            EXPECT_EQ(b.nehmen(), minimiert ? fall.minimiert : fall.normal);
            EXPECT_EQ(b.Spiel.Spieler.WinAmp_versteckt, minimiert ? fall.danach_minimiert : fall.danach_normal);
        }
}

TEST(WinAmp, Schließregeln) {
    for (const int status : {1, 3, 0})
        for (Long regel = 1; regel <= 4; ++regel)
            for (const bool vorher_versteckt : {false, true}) {
                Bühne b;
                b.Spieler_läuft(status);
                b.einstellungen.WinAmp_beenden = regel;
                b.Spiel.Spieler.WinAmp_versteckt = vorher_versteckt;
                b.Spiel.Spieler.am_Programmende();
                Aufzeichnung soll;
                if (vorher_versteckt) soll.push_back(gezeigt);
                if (regel == 2 || (regel == 3 && status == 0)) soll.push_back("Tonkartei 16 0 -");
                EXPECT_EQ(b.nehmen(), soll) << "rule " << regel << ", answer " << status;
            }
}

TEST(WinAmp, Lautstärke_des_Reglers) {
    Bühne b;
    b.Spiel.Spieler.Lautstärke_stellen(40);
    EXPECT_EQ(b.einstellungen.WinAmp_Lautstärke, 40) << "kept without a player, too";
    b.Spieler_läuft();
    // A stored value may be anything; the slider that shows it has 100 steps.
    for (const auto& [wert, laut] : {std::pair<Long, Long>{1, 3}, {50, 127}, {100, 255}, {2000000000, 255}, {-5, 0}}) {
        b.Spiel.Spieler.Lautstärke_stellen(wert);
        EXPECT_EQ(b.nehmen(), Aufzeichnung{gesendet(1024, laut, 122)}) << wert;
    }
}

TEST(WinAmp_Starter, Befehlstext) {
    Bühne b;
    const Text lied = b.ordner.datei("ein Lied.mp3");
    b.ansicht.informieren("von", "früher");
    EXPECT_TRUE(b.Spiel.Starter.starte_WinAmp("")) << "emptied at the beginning";
    EXPECT_TRUE(b.Spiel.Starter.starte_WinAmp_Datei(lied));
    EXPECT_EQ(b.nehmen(), (Aufzeichnung{b.Befehl(), "Pause 1000", b.Befehl(" \"" + lied + "\""), "Pause 1000"}));
    WinAmp_Programm pult("TonkarteiWA1", b.einstellungen, b.dateien, b.haus.plattform.Shell, b.rechner);
    EXPECT_EQ(pult.Befehl("\"x\""), b.Befehl(" /NEW /CLASS=\"TonkarteiWA1\" \"x\""));
    WinAmp spieler("TonkarteiWA1", b.einstellungen, b.Spiel.Steuerung, b.Spiel.Suche, b.rechner);
    spieler.nachsehen();
    EXPECT_FALSE(spieler.WinAmp_da);
    pult.starten("");
    spieler.nachsehen();
    EXPECT_EQ(spieler.WinAmp_Hwnd, b.fenster.von_Klasse("TonkarteiWA1").at(0)->Griff);
    // A box from within, whatever it is about, is this start's failure.
    b.ansicht.gefragt();
    b.Spiel.Takt.Autoplay_Schritt.verbinden([&] { b.ansicht.fragen("von", "innen"); });
    EXPECT_FALSE(b.Spiel.Starter.starte_WinAmp(""));
    EXPECT_EQ(b.ansicht.gefragt(), (Aufzeichnung{"von|innen", "Fehler|innen"}));
}

TEST(WinAmp_Starter, kein_Start) {
    Bühne b;
    int takte = 0;
    b.Spiel.Starter.Takt.verbinden([&] { ++takte; });
    b.Spieler_läuft();
    b.Spiel.Spieler.WinAmp_versteckt = true;
    EXPECT_FALSE(b.Spiel.Starter.starte_WinAmp_Datei(b.ordner.ordner("x.mp3"))) << "a folder is no song";
    EXPECT_FALSE(b.Spiel.Starter.starte_WinAmp_Datei("/nirgends/x.mp3"));
    EXPECT_TRUE(b.ansicht.gefragt().empty()) << "what is missing is not told";
    EXPECT_TRUE(b.nehmen().empty()) << "nothing started, nothing shown, no wait";
    b.störungen.Fehler_bestellen(Vorgang::starten, 1);
    EXPECT_FALSE(b.Spiel.Starter.starte_WinAmp("x"));
    const Text gesagt = b.ansicht.gefragt().at(0);
    EXPECT_TRUE(gesagt.starts_with("Tonkartei|") && gesagt.ends_with("\r\r" + b.ordner.pfad("WinAmp.Exe"))) << gesagt;
    EXPECT_EQ(takte, 0);
    // Missing within another start, it is that start's failure after all.
    b.Spiel.Takt.Autoplay_Schritt.verbinden([&] { b.Spiel.Starter.starte_WinAmp_Datei("/nirgends/x.mp3"); });
    EXPECT_FALSE(b.Spiel.Starter.starte_WinAmp(""));
    EXPECT_EQ(b.ansicht.gefragt(),
              Aufzeichnung{"Fehler|Die Datei /nirgends/x.mp3 wurde nicht gefunden.\r\rWinAmp wird nicht gestartet."});
}

TEST(WinAmp_Starter, verstecktes_Fenster_und_Lautstärke) {
    Bühne b;
    b.Spiel.Spieler.WinAmp_versteckt = true;  // left over from one that is gone
    EXPECT_TRUE(b.Spiel.Starter.starte_WinAmp_Datei(b.modell.Lied_Pfad(1)));
    EXPECT_EQ(b.Spiel.Spieler.WinAmp_Status, 1) << "the new one is seen at once";
    EXPECT_FALSE(b.Spiel.Spieler.WinAmp_versteckt);
    b.nehmen();
    b.Spiel.Spieler.WinAmp_versteckt = true;
    b.einstellungen.WinAmp_verstecken = b.einstellungen.WinAmp_FS_Lautstärke = true;
    b.einstellungen.WinAmp_Lautstärke = 100;
    b.Spiel.Starter.starte_WinAmp("");
    // Shown before the start; the tick hides it, and so does the start itself behind the volume.
    EXPECT_EQ(b.nehmen(), (Aufzeichnung{gezeigt, b.Befehl(), "Pause 1000", versteckt, gesendet(1024, 255, 122), versteckt}));
    EXPECT_TRUE(b.Spiel.Spieler.WinAmp_versteckt);
}

TEST(WinAmp_Optionen, Verstecken_umschalten) {
    Bühne b;
    auto& spieler = b.Spiel.Spieler;
    b.Spieler_läuft();
    b.Spiel.Optionen.Menü_WinAmp_verstecken();
    EXPECT_EQ(b.nehmen(), Aufzeichnung{versteckt});
    EXPECT_FALSE(spieler.WinAmp_versteckt) << "that is the next tick's";
    b.Spiel.Takt.Timer_Timer();
    EXPECT_EQ(b.nehmen(), Aufzeichnung{versteckt});
    b.Spiel.Optionen.Menü_WinAmp_verstecken();
    EXPECT_EQ(b.nehmen(), Aufzeichnung{gezeigt});
    b.Spiel.Takt.Timer_Timer();
    EXPECT_TRUE(spieler.WinAmp_versteckt) << "until the next start";
    b.Spiel.Optionen.Menü_WinAmp_verstecken();
    EXPECT_TRUE(b.nehmen().empty()) << "it still counts as hidden";
}

TEST(WinAmp_Optionen, Zeit_Anzahl) {
    Bühne b;
    const std::pair<const char*, Long> fälle[] = {{"99999999999", 10}, {"0", 10},  {"-5", 10},         {"viel", 10},
                                                  {"0.5", 0},          {"2.5", 2}, {" 7 Sekunden", 7}, {"", 10}};
    for (const auto& [antwort, danach] : fälle) {
        b.einstellungen.Anzahl_Zeit = 10;
        b.ansicht.Eingaben = {antwort};
        b.Spiel.Optionen.Zeit_Anzahl();
        EXPECT_EQ(b.einstellungen.Anzahl_Zeit, danach) << antwort;
    }
}

}  // namespace
}  // namespace tonkartei
