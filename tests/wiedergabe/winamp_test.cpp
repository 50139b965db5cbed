// What the program keeps of its player: looking, hiding, closing; the tick; the menu commands.
#include <gtest/gtest.h>

#include "wiedergabe/buehne.hpp"

namespace tonkartei {
namespace {

TEST(WinAmp, der_Takt_folgt_dem_Spieler) {
    Bühne b;
    Text folge;
    b.Spiel.Takt.Anzeige_Schritt.verbinden([&] { folge += "Anzeige"; });
    b.Spiel.Takt.Autoplay_Schritt.verbinden([&] { folge += "Autoplay " + Zahltext(b.Spiel.Spieler.WinAmp_Status) + " "; });
    b.Spiel.Takt.Timer_Timer();
    EXPECT_FALSE(b.Spiel.Spieler.WinAmp_da);
    EXPECT_EQ(b.Spiel.Spieler.WinAmp_Status, 3) << "nothing plays as far as anybody knows";

    b.Spieler_erscheint(3);
    folge.clear();
    b.Spiel.Takt.Timer.auslösen();
    EXPECT_EQ(folge, "Autoplay 2 Anzeige") << "looks first";
    EXPECT_TRUE(b.Spiel.Spieler.WinAmp_da);
    EXPECT_EQ(b.Spiel.Spieler.WinAmp_Status, 2);

    b.Fenster.Fenster.clear();
    b.Spiel.Takt.Timer_Timer();
    EXPECT_FALSE(b.Spiel.Spieler.WinAmp_da);
    EXPECT_EQ(b.Spiel.Spieler.WinAmp_Status, 2) << "the last known status stays";
    EXPECT_TRUE(b.Protokoll.empty()) << "looking changes nothing";

    b.Einstellungen.WinAmp_verstecken = true;
    b.Spieler_erscheint();
    b.Spiel.Takt.Timer_Timer();
    b.Spiel.Takt.Timer_Timer();
    EXPECT_EQ(b.Protokoll, Aufzeichnung{versteckt_7}) << "a new one is hidden once";
}

TEST(WinAmp, Hauptfenster_minimiert_und_normal) {
    const struct {
        bool da, versteckt, immer_verstecken, minimiert_verstecken;
        Aufzeichnung minimiert, normal;        // what is done to the window
        bool danach_minimiert, danach_normal;  // hidden afterwards
    } fälle[] = {
        {true, false, false, true, {versteckt_7}, {}, true, false},
        {true, false, false, false, {}, {}, false, false},
        {true, true, false, true, {}, {gezeigt_7}, true, false},
        {true, true, true, true, {}, {}, true, true},
        {true, false, true, true, {versteckt_7}, {}, true, false},
        {false, false, false, true, {}, {}, false, false},
        {false, true, false, true, {}, {}, true, true},
    };
    for (const auto& fall : fälle)
        for (const bool minimiert : {true, false}) {
            SCOPED_TRACE(std::to_string(&fall - fälle) + (minimiert ? " minimised" : " normal"));
            Bühne b;
            if (fall.da) b.Spieler_läuft();
            b.Einstellungen.WinAmp_verstecken = fall.immer_verstecken;
            b.Einstellungen.WinAmp_verstecken_minimiert = fall.minimiert_verstecken;
            b.Spiel.Spieler.WinAmp_versteckt = fall.versteckt;
            if (minimiert)
                b.Spiel.Spieler.Hauptfenster_minimiert();
            else
                b.Spiel.Spieler.Hauptfenster_normal();
            EXPECT_EQ(b.Protokoll, minimiert ? fall.minimiert : fall.normal);
            EXPECT_EQ(b.Spiel.Spieler.WinAmp_versteckt, minimiert ? fall.danach_minimiert : fall.danach_normal);
        }
}

TEST(WinAmp, Schließregeln) {
    for (const std::int32_t antwort : {1, 3, 0})
        for (Long regel = 0; regel <= 5; ++regel)
            for (const bool versteckt : {false, true}) {
                Bühne b;
                b.Spieler_läuft(antwort);
                b.Einstellungen.WinAmp_beenden = regel;
                b.Spiel.Spieler.WinAmp_versteckt = versteckt;
                b.Spiel.Spieler.am_Programmende();
                Aufzeichnung soll;
                if (versteckt) soll.push_back(gezeigt_7);
                if (regel == 2 || (regel == 3 && antwort == 0)) soll.push_back("schließen 7");
                EXPECT_EQ(b.Protokoll, soll) << "rule " << regel << ", answer " << antwort;
            }
}

TEST(WinAmp, Lautstärke_des_Reglers) {
    Bühne b;
    b.Spiel.Spieler.Lautstärke_stellen(40);
    EXPECT_EQ(b.Einstellungen.WinAmp_Lautstärke, 40) << "kept without a player, too";
    EXPECT_TRUE(b.Protokoll.empty());
    b.Spieler_läuft();
    // A stored value may be anything; the slider that shows it has 100 steps.
    for (const auto& [wert, gesendet] : {std::pair<Long, Long>{1, 3}, {50, 127}, {100, 255}, {2000000000, 255}, {-5, 0}}) {
        b.Spiel.Spieler.Lautstärke_stellen(wert);
        EXPECT_EQ(b.Protokoll.back(), "senden 7 1024 " + Zahltext(gesendet) + " 122") << wert;
    }
}

TEST(WinAmp_Optionen, Verstecken_umschalten) {
    Bühne b;
    auto& spieler = b.Spiel.Spieler;
    int geändert = 0;
    b.Spiel.Optionen.geändert.verbinden([&] { ++geändert; });
    b.Spieler_läuft();

    b.Spiel.Optionen.Menü_WinAmp_verstecken();
    EXPECT_TRUE(b.Einstellungen.WinAmp_verstecken);
    EXPECT_EQ(b.nehmen(), Aufzeichnung{versteckt_7});
    EXPECT_FALSE(spieler.WinAmp_versteckt) << "that is the next tick's";
    b.Spiel.Takt.Timer_Timer();
    EXPECT_EQ(b.nehmen(), Aufzeichnung{versteckt_7});

    b.Spiel.Optionen.Menü_WinAmp_verstecken();
    EXPECT_EQ(b.nehmen(), Aufzeichnung{gezeigt_7});
    EXPECT_TRUE(spieler.WinAmp_versteckt) << "until the next start";
    b.Spiel.Takt.Timer_Timer();
    EXPECT_TRUE(b.nehmen().empty());
    b.Spiel.Optionen.Menü_WinAmp_verstecken();
    EXPECT_TRUE(b.nehmen().empty()) << "it still counts as hidden";
    EXPECT_EQ(geändert, 3);
}

TEST(WinAmp_Optionen, Verzeichnis) {
    Bühne b;
    const Text vorher = b.Einstellungen.WinAmp_Verzeichnis;
    b.Spiel.Optionen.WinAmp_Verzeichnis_wählen();
    EXPECT_EQ(b.Ansicht.gefragt, "Verzeichnis von WinAmp:");
    EXPECT_EQ(b.Einstellungen.WinAmp_Verzeichnis, vorher) << "cancelled";

    const Text anderes = b.Ordner.ordner("anderes");
    b.Ansicht.Antworten = {b.Ordner.pfad("anderes"), vorher.substr(0, vorher.size() - 1)};
    b.Spiel.Optionen.WinAmp_Verzeichnis_wählen();
    EXPECT_EQ(b.Einstellungen.WinAmp_Verzeichnis, anderes) << "stays set all the same";
    EXPECT_EQ(b.Ansicht.Meldungen, Aufzeichnung{"Fehler|In diesem Verzeichnis wurde kein WinAmp gefunden!"});
    b.Spiel.Optionen.WinAmp_Verzeichnis_wählen();
    EXPECT_EQ(b.Einstellungen.WinAmp_Verzeichnis, vorher);
    EXPECT_EQ(b.Ansicht.Meldungen.size(), 1U);
}

TEST(WinAmp_Optionen, Zeit_Anzahl) {
    Bühne b;
    const std::pair<const char*, Long> fälle[] = {{"30", 30},   {"99999999999", 10}, {"0", 10},  {"-5", 10},
                                                  {"viel", 10}, {"0,5", 10},         {"0.5", 0}, {"1.5", 2},
                                                  {"2.5", 2},   {" 7 Sekunden", 7},  {"", 10}};
    for (const auto& [antwort, danach] : fälle) {
        b.Einstellungen.Anzahl_Zeit = 10;
        b.Ansicht.Antworten = {antwort};
        b.Spiel.Optionen.Zeit_Anzahl();
        EXPECT_EQ(b.Einstellungen.Anzahl_Zeit, danach) << antwort;
    }
    EXPECT_EQ(
        b.Ansicht.gefragt,
        "Zeit zum Anzahl erhöhen|Dieser Wert (in Sekunden) gibt an, wie lange ein Lied mindestens gespielt werden muß, "
        "damit der Anzahl-Wert erhöht wird:|10");
    EXPECT_TRUE(b.Ansicht.Meldungen.empty());
}

}  // namespace
}  // namespace tonkartei
