// The operator on a small program: what a hand may do, how waiting nests, what time does, how it ends.
#include <gtest/gtest.h>

#include "bediener/bediener.hpp"
#include "testordner.hpp"

namespace tonkartei {
namespace {

class Bedienung : public testing::Test {
protected:
    Testordner ordner;
    Bediener b{{.wurzel = ordner.ordner("wurzel"), .ordner = ordner.pfad(), .programm = TONKARTEI_UEBUNG}};

    std::string ergebnis() { return b.text("Haupt.Ergebnis"); }
    int ticks() { return std::stoi(b.text("Haupt.Ticks")); }
    // The command's error, "" without; it must not have changed what is waited for.
    std::string fehler(const std::string& zeile) {
        b(zeile);
        return b.fehler();
    }
};

TEST_F(Bedienung, nicht_zu_Bedienendes_ändert_nichts) {
    for (const char* zeile : {"klick Haupt.Gesperrt", "klick Haupt.Fehlt", "klick Dialog.Ok", "klick Haupt.Leer",
                              "wähle Haupt.Liste 3", "setze Haupt.Auswahl blau", "antwort Ja", "pfad /",
                              "ziehe Haupt.Liste Haupt.Kasten", "schließe Dialog", "störung fliegen 1", "zufall 1", "uhr -1",
                              "spieler weg X", "Unsinn", "", "bild Haupt /tmp/x.png", "klick Haupt.Fragen 1 2 3"})
        EXPECT_NE(fehler(zeile), "") << zeile;
    EXPECT_EQ(b.bereit(), "schleife");
    EXPECT_EQ(ergebnis(), "");
}

TEST_F(Bedienung, Werte_von_Hand) {
    b("wähle Haupt.Liste 1");
    EXPECT_EQ(ergebnis(), "Zeile 1");
    b("taste Haupt.Liste Ab");
    EXPECT_EQ(ergebnis(), "Zeile 2");
    b("setze Haupt.Auswahl #rot");  // a text that looks like a position
    EXPECT_EQ(b.zeige("Haupt.Auswahl")["gewählt"], 0);
    b("setze Haupt.Auswahl #1");
    EXPECT_EQ(b.text("Haupt.Auswahl"), "grün");
    b("setze Haupt.Regler 250");
    EXPECT_EQ(b.zeige("Haupt.Regler")["wert"], 100);
    b("ziehe Haupt.Liste Haupt.Ziel");
    EXPECT_EQ(ergebnis(), "von Liste");
    b("ablage Haupt \"/a b\" \"/\\udce4\\u00e4\"");
    EXPECT_EQ(Bediener::Pfadbytes(ergebnis()), "/\xE4ä");
}

TEST_F(Bedienung, Felder) {
    b("klick Haupt.Fragen");
    EXPECT_EQ(b.meldung(), "a\nb\nc");
    EXPECT_NE(fehler("klick Haupt.Eingeben"), "");  // the hand is bound while a box is up
    EXPECT_NE(fehler("antwort OK"), "");
    b("antwort Ja");
    EXPECT_EQ(ergebnis(), "ja");

    const struct {
        const char *knopf, *bereit, *antwort, *ergebnis;
    } fälle[] = {
        {"Eingeben", "eingabe", "eingabe  zwei  \"Worte\"", " zwei  \"Worte\""},
        {"Eingeben", "eingabe", "eingabe \"mit \\\"Zitat\\\"\"", "mit \"Zitat\""},
        {"Eingeben", "eingabe", "eingabe \"halb", "\"halb"},
        {"Eingeben", "eingabe", "eingabe", "leer"},
        {"Eingeben", "eingabe", "abbrechen", "leer"},
        {"Ordner", "ordner", "pfad /", "/"},
        {"Farbe", "farbe", "farbe 255", "255"},
        {"Farbe", "farbe", "abbrechen", "keine"},
    };
    for (const auto& fall : fälle) {
        b(std::string("klick Haupt.") + fall.knopf);
        EXPECT_EQ(b.bereit(), fall.bereit);
        EXPECT_NE(fehler("pfad /gibt/es/nicht"), "");
        b(fall.antwort);
        EXPECT_EQ(ergebnis(), fall.ergebnis) << fall.antwort;
    }
}

TEST_F(Bedienung, Dialoge) {
    b("klick Haupt.Warten");
    EXPECT_EQ(b.bereit_name(), "Dialog");
    EXPECT_EQ(fehler("klick Haupt.Kasten"), "");  // a waiting dialog leaves the others usable
    b("setze Dialog.Eingabe Größe");
    b("klick Dialog.Ok");
    EXPECT_EQ(b.bereit(), "schleife");
    EXPECT_EQ(ergebnis(), "Größe");

    b("klick Haupt.Modal");
    EXPECT_NE(fehler("klick Haupt.Kasten"), "");
    EXPECT_EQ(b.fenster("Haupt")["aktiv"], false);
    b("uhr +1000");
    EXPECT_EQ(ticks(), 2);  // timers run in a dialog
    b("schließe Dialog");
    EXPECT_EQ(b.bereit(), "schleife");
    EXPECT_EQ(ergebnis(), "nach modal");
}

TEST_F(Bedienung, Zeit) {
    b("uhr +499");
    EXPECT_EQ(ticks(), 0);
    b("uhr +1");
    EXPECT_EQ(ticks(), 1);
    b("klick Haupt.Schlafen");  // 500 to 1700
    EXPECT_EQ(ticks(), 1);
    b("uhr +0");  // overdue since 1000: once
    EXPECT_EQ(ticks(), 2);
    b("uhr +499");  // the period started anew at 1700
    EXPECT_EQ(ticks(), 2);
    b("uhr +1");
    EXPECT_EQ(ticks(), 3);

    b("klick Haupt.Läuten");
    b("uhr +10000");
    b("uhr +10000");  // timers rest
    EXPECT_EQ(b.bereit(), "meldung");
    b("antwort OK");
    EXPECT_EQ(ticks(), 4);  // the rest of the time is dropped
    b("uhr +0");
    EXPECT_EQ(ticks(), 5);
}

TEST_F(Bedienung, Vormerken_und_Endlosschleife) {
    b("vormerken klick Haupt.Kasten");
    EXPECT_EQ(b.zeige("Haupt.Kasten")["wert"], false);
    b("klick Haupt.Arbeit");
    EXPECT_EQ(ergebnis(), "fertig");
    b("klick Haupt.Endlos");
    EXPECT_EQ(b.bereit(), "hängt");
    EXPECT_EQ(b.Ende_abwarten(), 3);
}

TEST_F(Bedienung, Ende_von_außen_fragt_nicht) {
    b("klick Haupt.Warten");
    b("klick Haupt.Fragen");
    b("schließe Haupt extern");
    EXPECT_EQ(b.meldung(), "von außen");
    EXPECT_EQ(b.bereit(), "ende");
    EXPECT_EQ(b.Ende_abwarten(), 0);
}

TEST_F(Bedienung, Absturz) {
    b("absturz öffnen 1");
    b("klick Haupt.Schreiben");
    EXPECT_EQ(b.bereit(), "");
    EXPECT_EQ(b.Ende_abwarten(), 9);
    EXPECT_FALSE(ordner.da("probe.txt"));  // just before it
}

TEST_F(Bedienung, Störungen) {
    const struct {
        const char *vorher, *ergebnis;
    } fälle[] = {{"störung öffnen 2", "geschrieben"},
                 {"uhr +0", "70"},
                 {"schreibschutz . an", "75"},
                 {"schreibschutz . aus", "geschrieben"}};
    for (const auto& fall : fälle) {
        b(fall.vorher);
        b("klick Haupt.Schreiben");
        EXPECT_EQ(ergebnis(), fall.ergebnis) << fall.vorher;
    }
    b("zufall 0.25");
    b("klick Haupt.Würfeln");
    EXPECT_EQ(ergebnis(), "bestellt");
}

TEST_F(Bedienung, Spieler) {
    b("spieler neu fremd");
    b("klick Haupt.Starten");
    const auto alle = b.spieler();
    ASSERT_EQ(alle.size(), 2U);
    EXPECT_EQ(alle[1]["klasse"], "B");
    EXPECT_EQ(alle[1]["datei"], "/m/ä b.mp3");
    EXPECT_EQ(b.protokoll()[0]["art"], "prozess");
    EXPECT_TRUE(b.protokoll().empty());
}

TEST(Bedienung_echt, Zeit_vergeht_von_selbst) {
    Testordner ordner;
    Bediener b({.maschine = "echt", .programm = TONKARTEI_UEBUNG, .umgebung = {"XDG_RUNTIME_DIR=" + ordner.pfad()}});
    b("warte 700");
    EXPECT_EQ(b.text("Haupt.Ticks"), "1");
    b("uhr +500");
    EXPECT_NE(b.fehler(), "");
}

}  // namespace
}  // namespace tonkartei
