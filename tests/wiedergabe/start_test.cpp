// Starting the player, and the counting that hangs on it.
#include <gtest/gtest.h>

#include "wiedergabe/buehne.hpp"

namespace tonkartei {
namespace {

Text Befehl(const Bühne& b, const Text& rest) {
    return "starten 2 " + b.Ordner.pfad("WinAmp.Exe /CLASS=\"Tonkartei\"") + rest;
}

TEST(WinAmp_Starter, Befehlstext) {
    Bühne b;
    const Text lied = b.Ordner.datei("ein Lied.mp3");
    b.Modell.Meldung = "von früher";
    EXPECT_TRUE(b.Spiel.Starter.starte_WinAmp("")) << "emptied at the beginning";
    EXPECT_TRUE(b.Spiel.Starter.starte_WinAmp("/NEW /CLASS=\"TonkarteiWA1\""));
    EXPECT_TRUE(b.Spiel.Starter.starte_WinAmp_Datei(lied));
    EXPECT_EQ(b.Protokoll, (Aufzeichnung{Befehl(b, ""), "warten 1000", Befehl(b, " /NEW /CLASS=\"TonkarteiWA1\""),
                                         "warten 1000", Befehl(b, " \"" + lied + "\""), "warten 1000"}));
    EXPECT_TRUE(b.Ansicht.Meldungen.empty());
    b.Spiel.Takt.Autoplay_Schritt.verbinden([&] { b.Modell.Meldung = "von innen"; });
    EXPECT_FALSE(b.Spiel.Starter.starte_WinAmp(""));
    EXPECT_EQ(b.Ansicht.Meldungen, Aufzeichnung{"Fehler|von innen"});
}

TEST(WinAmp_Starter, kein_Start) {
    Bühne b;
    int takte = 0;
    b.Spiel.Starter.Takt.verbinden([&] { ++takte; });
    b.Spieler_läuft();
    b.Spiel.Spieler.WinAmp_versteckt = true;
    EXPECT_FALSE(b.Spiel.Starter.starte_WinAmp_Datei(b.Ordner.ordner("x.mp3"))) << "a folder is no song";
    EXPECT_FALSE(b.Spiel.Starter.starte_WinAmp_Datei("/nirgends/x.mp3"));
    EXPECT_EQ(b.Modell.Meldung, "Die Datei /nirgends/x.mp3 wurde nicht gefunden.\r\rWinAmp wird nicht gestartet.");
    EXPECT_TRUE(b.Ansicht.Meldungen.empty()) << "what is missing is not told";
    b.Einstellungen.WinAmp_Verzeichnis = b.Ordner.ordner("leer");
    EXPECT_FALSE(b.Spiel.Starter.starte_WinAmp(""));
    EXPECT_TRUE(b.Protokoll.empty()) << "nothing started, nothing shown, no wait";
    b.Einstellungen.WinAmp_Verzeichnis = b.Ordner.pfad();
    b.Shell.scheitert = true;
    EXPECT_FALSE(b.Spiel.Starter.starte_WinAmp("x"));
    EXPECT_EQ(b.Ansicht.Meldungen,
              (Aufzeichnung{"Fehler|WinAmp wurde nicht gefunden!\r\rDas Verzeichnis muß unter "
                            "Optionen/WinAmp-Verzeichnis eingestellt werden!",
                            "Tonkartei|" + Dateifehler(70).Beschreibung() + "\r\r" + b.Ordner.pfad("WinAmp.Exe")}));
    EXPECT_EQ(takte, 0);
}

TEST(WinAmp_Starter, verstecktes_Fenster_und_Lautstärke) {
    Bühne b;
    b.Spiel.Spieler.WinAmp_versteckt = true;  // left over from one that is gone
    b.Shell.nach_dem_Start = [&] { b.Spieler_erscheint(); };
    EXPECT_TRUE(b.Spiel.Starter.starte_WinAmp(""));
    EXPECT_EQ(b.Spiel.Spieler.WinAmp_Status, 1) << "the new one is seen at once";
    EXPECT_FALSE(b.Spiel.Spieler.WinAmp_versteckt);
    EXPECT_EQ(b.nehmen(), (Aufzeichnung{Befehl(b, ""), "warten 1000"}));
    b.Shell.nach_dem_Start = nullptr;
    b.Spiel.Spieler.WinAmp_versteckt = true;
    b.Einstellungen.WinAmp_verstecken = true;
    b.Einstellungen.WinAmp_FS_Lautstärke = true;
    b.Einstellungen.WinAmp_Lautstärke = 100;
    b.Spiel.Starter.starte_WinAmp("");
    // Shown before the start; the tick hides it, and so does the start itself behind the volume.
    EXPECT_EQ(b.Protokoll,
              (Aufzeichnung{gezeigt_7, Befehl(b, ""), "warten 1000", versteckt_7, "senden 7 1024 255 122", versteckt_7}));
    EXPECT_TRUE(b.Spiel.Spieler.WinAmp_versteckt);
}

// A start takes a second of the clock, and both times are read behind it; so what counts is the distance between the
// commands.
TEST(Spielzählung, nächster_Start_nimmt_zurück) {
    const struct {
        const char* was;
        int erster[3], zweiter[3];  // hour, minute, second of the commands
        Long Anzahl_Zeit;
        bool bleibt;  // the first song keeps its count
    } fälle[] = {
        {"one second short", {12, 0, 0}, {12, 0, 9}, 10, false},
        {"exactly on the limit", {12, 0, 0}, {12, 0, 10}, 10, true},
        {"carry over the hour", {11, 59, 55}, {12, 0, 4}, 10, false},
        {"long enough over the hour", {11, 59, 55}, {12, 0, 5}, 10, true},
        {"no time asked", {12, 0, 0}, {12, 0, 0}, 0, true},
        {"an hour asked", {12, 0, 0}, {12, 59, 59}, 3600, false},
        {"more than 16 bits of seconds", {0, 0, 0}, {23, 0, 0}, 70000, true},
        {"an hour, but over midnight", {23, 30, 0}, {0, 30, 0}, 10, false},
        {"just after midnight the limit is below zero", {0, 0, 1}, {0, 0, 5}, 10, false},
        {"the limit at zero", {0, 0, 0}, {0, 0, 10}, 10, true},
    };
    for (const auto& fall : fälle) {
        Bühne b;
        b.Einstellungen.Anzahl_Zeit = fall.Anzahl_Zeit;
        b.Modell.Lieder[1].Anzahl = 4;
        b.Rechner.stellen(fall.erster[0], fall.erster[1], fall.erster[2]);
        b.Spiel.Zählung.starte_Lied(1);
        EXPECT_EQ(b.Modell.Lieder[1].Anzahl, 5) << fall.was << ": counts at once";
        b.Rechner.stellen(fall.zweiter[0], fall.zweiter[1], fall.zweiter[2]);
        b.Spiel.Zählung.starte_Lied(2);
        EXPECT_EQ(b.Modell.Lieder[1].Anzahl, fall.bleibt ? 5 : 4) << fall.was;
        EXPECT_EQ(b.Modell.Lieder[2].Anzahl, 1) << fall.was;
    }
    Bühne b;
    b.Spiel.Zählung.starte_Lied(3);
    b.Spiel.Zählung.starte_Lied(3);
    EXPECT_EQ(b.Modell.Lieder[3].Anzahl, 1) << "the same song: taken back once, counted twice";
}

TEST(Spielzählung, misslungener_Start_ändert_nichts) {
    Bühne b;
    b.Spiel.Zählung.starte_Lied(1);
    const auto startzeit = b.Spiel.Zählung.Letzte_Startzeit;
    b.Dateien.löschen(b.Modell.Lied_Pfad(2));
    b.Spiel.Zählung.starte_Lied(2);
    EXPECT_EQ(b.Modell.Lieder[1].Anzahl, 1) << "the song before keeps its count";
    EXPECT_EQ(b.Modell.Lieder[2].Anzahl, 0);
    EXPECT_EQ(b.Spiel.Zählung.Letztes_Lied, 1);
    EXPECT_EQ(b.Spiel.Zählung.Letzte_Startzeit, startzeit);
    EXPECT_EQ(b.Spiel.Zählung.Gespielt_Anzahl, 1);
}

TEST(Spielzählung, Liste_der_letzten_hundert) {
    Bühne b;
    b.Spiel.Zählung.starte_Lied(5);
    b.Spiel.Zählung.starte_Lied(4);
    for (int i = 3; i <= Gespielt_maximal; ++i) b.Spiel.Zählung.starte_Lied(1);
    EXPECT_EQ(b.Spiel.Zählung.Gespielt_Anzahl, 100);
    EXPECT_EQ(b.Spiel.Zählung.Gespielt_Liste[1], 5);
    b.Spiel.Zählung.starte_Lied(2);
    EXPECT_EQ(b.Spiel.Zählung.Gespielt_Anzahl, 100);
    EXPECT_EQ(b.Spiel.Zählung.Gespielt_Liste[1], 4);
    EXPECT_EQ(b.Spiel.Zählung.Gespielt_Liste[100], 2);
}

}  // namespace
}  // namespace tonkartei
