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
    std::string nach(const std::string& zeile) {
        b(zeile);
        return ergebnis();
    }
    // The command's error, "" without; it must not have changed what is waited for.
    std::string fehler(const std::string& zeile) {
        b(zeile);
        return b.fehler();
    }
};

TEST_F(Bedienung, nicht_zu_Bedienendes_ändert_nichts) {
    for (const char* zeile : {"klick Haupt.Gesperrt", "klick Haupt.Verborgen", "klick Haupt.Fehlt", "klick Dialog.Ok",
                              "klick Haupt.Leer", "wähle Haupt.Liste 3", "setze Haupt.Auswahl blau", "antwort Ja", "pfad /",
                              "ziehe Haupt.Liste Haupt.Kasten", "schließe Dialog", "störung fliegen 1", "zufall 1", "uhr -1",
                              "spieler weg X", "Unsinn", "", "bild Haupt /tmp/x.png", "klick Haupt.Fragen 1 2 3"})
        EXPECT_NE(fehler(zeile), "") << zeile;
    EXPECT_EQ(b.bereit(), "schleife");
    EXPECT_EQ(ergebnis(), "");
}

TEST_F(Bedienung, Werte_von_Hand) {
    EXPECT_EQ(nach("wähle Haupt.Liste 1"), "Zeile 1");
    EXPECT_EQ(nach("taste Haupt.Liste Ab"), "Zeile 2");
    b("setze Haupt.Auswahl #rot");  // a text that looks like a position
    EXPECT_EQ(b.zeige("Haupt.Auswahl")["gewählt"], 0);
    b("setze Haupt.Auswahl #1");
    EXPECT_EQ(b.text("Haupt.Auswahl"), "grün");
    b("setze Haupt.Regler 250");
    EXPECT_EQ(b.zeige("Haupt.Regler")["wert"], 100);
    EXPECT_EQ(nach("ziehe Haupt.Liste Haupt.Ziel"), "von Liste");
    EXPECT_EQ(Bediener::Pfadbytes(nach("ablage Haupt \"/a b\" \"/\\udce4\\u00e4\"")), "/\xE4ä");
}

TEST_F(Bedienung, Felder) {
    b("klick Haupt.Fragen");
    EXPECT_EQ(b.meldung(), "a\nb\nc");
    EXPECT_NE(fehler("klick Haupt.Eingeben"), "");  // the hand is bound while a box is up
    EXPECT_NE(fehler("antwort OK"), "");
    EXPECT_EQ(nach("antwort Ja"), "ja");

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
        EXPECT_EQ(nach(fall.antwort), fall.ergebnis) << fall.antwort;
    }
}

TEST_F(Bedienung, Dialoge) {
    b("klick Haupt.Warten");
    EXPECT_EQ(b.bereit_name(), "Dialog");
    EXPECT_EQ(fehler("klick Haupt.Kasten"), "");  // a waiting dialog leaves the others usable
    b("setze Dialog.Eingabe Größe");
    EXPECT_EQ(nach("klick Dialog.Ok"), "Größe");
    EXPECT_EQ(b.bereit(), "schleife");

    b("klick Haupt.Modal");
    EXPECT_NE(fehler("klick Haupt.Kasten"), "");
    EXPECT_EQ(b.fenster("Haupt")["aktiv"], false);
    b("uhr +1000");
    EXPECT_EQ(b.text("Haupt.Ticks"), "2");  // timers run in a dialog
    EXPECT_EQ(nach("schließe Dialog"), "nach modal");
    EXPECT_EQ(b.bereit(), "schleife");
}

TEST_F(Bedienung, Zeit) {
    const struct {
        const char* zeile;
        int ticks;
    } schritte[] = {
        {"uhr +499", 0},
        {"uhr +1", 1},
        {"klick Haupt.Schlafen", 1},  // 500 to 1700
        {"uhr +0", 2},                // overdue since 1000: once
        {"uhr +499", 2},              // the period started anew at 1700
        {"uhr +1", 3},
        {"klick Haupt.Läuten", 3},
        {"uhr +10000", 4},  // a box comes up and drops the rest of the time
        {"uhr +10000", 4},  // timers rest
        {"antwort OK", 4},
        {"uhr +0", 5},
    };
    for (const auto& schritt : schritte) {
        b(schritt.zeile);
        EXPECT_EQ(b.text("Haupt.Ticks"), std::to_string(schritt.ticks)) << schritt.zeile;
    }
}

TEST_F(Bedienung, Vormerken_und_Endlosschleife) {
    b("vormerken klick Haupt.Kasten");
    EXPECT_EQ(b.zeige("Haupt.Kasten")["wert"], false);
    EXPECT_EQ(nach("klick Haupt.Arbeit"), "fertig");
    b("klick Haupt.Endlos");
    EXPECT_EQ(b.bereit(), "hängt");
    EXPECT_EQ(b.Ende_abwarten(), 3);
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
        EXPECT_EQ(nach("klick Haupt.Schreiben"), fall.ergebnis) << fall.vorher;
    }
    b("zufall 0.25");
    EXPECT_EQ(nach("klick Haupt.Würfeln"), "bestellt");
}

}  // namespace
}  // namespace tonkartei
