// The choice of the next song: chance, order, change of category.
#include <gtest/gtest.h>

#include <algorithm>

#include "alben/albenraum.hpp"
#include "datenbank/datenbankraum.hpp"
#include "kategorien/kategorienbereich.hpp"
#include "kategorien/kategorienraum.hpp"
#include "liste/listenbereich.hpp"
#include "oberflaeche/fenster.hpp"
#include "oberflaeche/hand.hpp"
#include "wiedergabe/buehne.hpp"
#include "wiedergabe/wiedergabebereich.hpp"
#include "wiedergabe/zufall/liedautomatik.hpp"

namespace tonkartei {
namespace {

// The areas of the main window that chance looks at, over a collection in memory.
struct Zufallsbühne : Bühne {
    tonkartei::Fenster Haupt{Ansicht, "Tonkartei", "Tonkartei"};
    Datenbankraum Datenbank{Haus};
    Albenraum Album{Datenbank};
    Albenbestand& Alben = Album.alben.eigene;
    Kategorienraum Kategoriefenster{Haus};
    Kategorienbereich Kategorien{Haupt, Modell, Einstellungen, Kategoriefenster.bearbeiten};
    Listenbereich Lieder{Haupt, Haus, Album, Kategorien};
    Wiedergabebereich Knöpfe{Haupt};
    Liedautomatik Automatik{Haus, Album.start, Spiel, {Lieder, Kategorien, Knöpfe}};

    // A song a count.
    explicit Zufallsbühne(const std::vector<Long>& Anzahlen, int prozent = 25) {
        Einstellungen.Random_Einstellung = als_Byte(prozent);
        Modell.Datenbank_offen = true;
        Modell.Anzahl_Kategorien = 4;
        Modell.Anzahl_Lieder = als_Long(static_cast<long long>(Anzahlen.size()));
        for (Long nr = 1; nr <= Modell.Anzahl_Lieder; ++nr) {
            Modell.Lieder[nr].Anzahl = Anzahlen[static_cast<std::size_t>(nr - 1)];
            Modell.Lieder[nr].Kategorie = als_Byte(2 + nr % 3);
        }
        Kategorien.Auswahl_geändert.verbinden([this] { Lieder.aktualisiere_Liste(); });
        Kategorien.aktualisiere_Kategorie_List(false);
        Alle_zeigen();
    }
    void Alle_zeigen() {
        std::vector<long long> nummern;
        for (Long nr = 1; nr <= Modell.Anzahl_Lieder; ++nr) nummern.push_back(nr);
        Lieder.Nr_Liste_setzen(nummern);
        Lieder.erstelle_Liste_von_Nr_Liste();
    }
    void gespielt(Long nr) { Spiel.Zählung.Gespielt_Liste[++Spiel.Zählung.Gespielt_Anzahl] = nr; }
    Long ziehe(float R) {
        Rechner.Zufall = {R};
        return Automatik.Zufall.Zufallslied_wählen();
    }
    // Which categories are on show: "1" for all, "24" for two of them.
    std::string Kästen() {
        std::string text;
        for (int k = 1; k <= Modell.Anzahl_Kategorien; ++k)
            if (Kategorien.zeige_Kategorie(k).wert()) text += Zahltext(k);
        return text;
    }
};

TEST(Zufall, Anteil_der_sortierten_Liste) {
    const std::vector<Long> sieben{3, 2, 1, 0, 9, 9, 9};
    const std::vector<Long> fünfzig(50, 0);
    struct {
        std::vector<Long> Anzahlen;
        int Prozent;
        float R;
        Long Lied;
    } const fälle[] = {
        {sieben, 25, 0.0F, 4},      {sieben, 25, 0.5714F, 4},    {sieben, 25, 0.5715F, 3},
        {sieben, 25, 0.9999F, 3},   {{5, 5, 4}, 25, 0.9999F, 3}, {fünfzig, 25, 0.0F, 1},
        {fünfzig, 25, 0.9999F, 13}, {sieben, 100, 0.9999F, 7},  // equal counts: the lower number first
        {sieben, 1, 0.9999F, 4},    {{7}, 25, 0.5F, 1},          {sieben, 200, 0.9999F, 7},  // a registry changed by hand
        {{-5, 0, -4}, 1, 0.0F, 3},                                                           // as text, not as numbers
    };
    for (const auto& f : fälle) {
        Zufallsbühne b(f.Anzahlen, f.Prozent);
        EXPECT_EQ(b.ziehe(f.R), f.Lied) << f.Anzahlen.size() << " songs, " << f.Prozent << " %, " << f.R;
        EXPECT_EQ(b.Lieder.gewähltes_Lied(), f.Lied);
        EXPECT_TRUE(b.Protokoll.empty()) << "nothing is started";
    }
    Zufallsbühne leer({});
    EXPECT_EQ(leer.ziehe(0), 0);
}

TEST(Zufall, Vor_kurzem_gespielte_erst_nach_hundert_Versuchen) {
    Zufallsbühne b({0, 0, 0, 0}, 50);
    b.gespielt(1);
    b.Rechner.Zufall = {0.0F, 0.4F, 0.6F, 0.0F};
    EXPECT_EQ(b.Automatik.Zufall.Zufallslied_wählen(), 2);
    EXPECT_EQ(b.Rechner.Zufall.size(), 1U);
    b.gespielt(2);
    for (int i = 0; i <= 101; ++i) b.Rechner.Zufall.push_back(i == 100 ? 0.9F : 0.0F);
    b.Rechner.Zufall.pop_front();
    EXPECT_EQ(b.Automatik.Zufall.Zufallslied_wählen(), 2) << "the 101st value stands";
    EXPECT_EQ(b.Rechner.Zufall.size(), 1U);
}

TEST(Zufall, Eine_doppelte_Nummer_und_eine_überlange_Anzahl) {
    Zufallsbühne b({0, 1, 1});
    b.Lieder.Nr_Liste_setzen({2, 1, 3, 1});
    b.Lieder.erstelle_Liste_von_Nr_Liste();
    EXPECT_EQ(b.ziehe(0), 1);
    EXPECT_EQ(b.Lieder.Liste.gewählt(), 3) << "the last line with that number";
    // More than eight digits leave the field out; what moves forward is no song.
    b.Modell.Lieder[2].Anzahl = 123456789;
    b.Lieder.Nr_Liste_setzen({2});
    b.Lieder.erstelle_Liste_von_Nr_Liste();
    EXPECT_EQ(b.ziehe(0), 0);
    EXPECT_EQ(b.Lieder.Liste.gewählt(), 0);
}

TEST(Zufall, Alle_Lieder_kommen_gleich_oft_an_die_Reihe) {
    Zufallsbühne b(std::vector<Long>(200, 0));
    for (int i = 0; i < 10000; ++i) {
        const Long nr = b.Automatik.Zufall.Zufallslied_wählen();
        ASSERT_GE(nr, 1);
        ++b.Modell.Lieder[nr].Anzahl;
    }
    Long wenigste = 10000, meiste = 0;
    for (Long nr = 1; nr <= 200; ++nr) {
        wenigste = std::min(wenigste, b.Modell.Lieder[nr].Anzahl);
        meiste = std::max(meiste, b.Modell.Lieder[nr].Anzahl);
    }
    EXPECT_LE(meiste, 2 * wenigste);
}

TEST(Zufall, Im_Album_nur_was_da_ist) {
    Zufallsbühne b({5, 4, 3, 2});
    b.Modell.Alben_geladen = true;
    b.Alben.Anzahl = 1;
    Album& album = b.Alben.Alben[1];
    album.Titel_Anzahl = 5;
    const Long links[] = {1, 0, 4, 2, 1};
    for (int t = 1; t <= 5; ++t) {
        album.Lieder[t].in_Datenbank = links[t - 1] > 0;
        album.Lieder[t].Lied_Nr = links[t - 1];
    }
    b.Lieder.Datenbank_Modus.wert(1);
    EXPECT_EQ(b.ziehe(0), 0) << "no album is chosen";
    b.Lieder.Liste.wähle(0);
    EXPECT_EQ(b.ziehe(0), 4);
    EXPECT_EQ(b.Lieder.Liste2.gewählt(), 2);
    // In order, around the end, over what is missing.
    std::string gegangen;
    for (int i = 0; i < 5; ++i) {
        EXPECT_TRUE(b.Automatik.Folge.nächster_Titel());
        gegangen += Zahltext(b.Lieder.Liste2.gewählt());
    }
    EXPECT_EQ(gegangen, "34023");
    // Nothing of it is there: a search without an end, until the user leaves.
    album.Lieder[1].in_Datenbank = album.Lieder[3].in_Datenbank = album.Lieder[4].in_Datenbank = false;
    album.Lieder[5].in_Datenbank = false;
    b.Ansicht.Runde = [&] {
        EXPECT_FALSE(b.Automatik.Folge.nächster_Titel()) << "no second search inside";
        if (b.Ansicht.Ereignisrunden == 50) b.Lieder.Datenbank_Modus.wert(0);
    };
    EXPECT_FALSE(b.Automatik.Folge.nächster_Titel());
    EXPECT_EQ(b.Ansicht.Ereignisrunden, 50);
}

TEST(Kategoriewechsel, Topf_und_Zug) {
    struct {
        std::string Kästen;
        std::vector<float> R;
        std::string danach;
    } const fälle[] = {
        {"1", {0.0F}, "2"},  // all: the pool is 2, 3, 4
        {"1", {0.34F}, "3"},  {"1", {0.9999F}, "4"}, {"24", {0.0F}, "2"},
        {"24", {0.5F}, "4"},  {"3", {}, "3"},  // one alone asks nobody
        {"", {0.0F}, "2"},                     // no pool: any but the first
        {"", {0.9999F}, "4"},
    };
    for (const auto& f : fälle) {
        Zufallsbühne b({0});
        b.Kategorien.zeige_Kategorie(1).wert(false);
        for (const char k : f.Kästen) b.Kategorien.zeige_Kategorie(k - '0').wert(true);
        b.Rechner.Zufall.assign(f.R.begin(), f.R.end());
        b.Knöpfe.auto_Kat_Wechsel.wert(true);
        b.Knöpfe.Autoplay.wert(true);
        EXPECT_EQ(b.Kästen(), f.danach) << f.Kästen;
        EXPECT_TRUE(b.Rechner.Zufall.empty());
        // Never the one that is on show; a pool of one gives all but that one, as a second right click would.
        b.Rechner.Zufall = {0.0F, 0.9999F};
        b.Automatik.Wechsel.Kategorie_wechseln();
        const std::string dann = f.Kästen == "3" ? "24" : f.danach == "2" ? "4" : "2";
        if (f.Kästen == "3" || f.Kästen == "24") {
            EXPECT_EQ(b.Kästen(), dann);
        }
    }
}

TEST(Kategoriewechsel, Zeilen_sind_Text_und_zehn_kommt_vor_zwei) {
    Zufallsbühne b({0});
    b.Modell.Anzahl_Kategorien = 12;
    for (const int k : {2, 10, 11}) b.Kategorien.Auto_Wechsel_Kategorie[k] = true;
    b.Rechner.Zufall = {0.0F};
    b.Automatik.Wechsel.Kategorie_wechseln();
    EXPECT_TRUE(b.Kategorien.zeige_Kategorie(10).wert());
}

TEST(Kategoriewechsel, Ein_Klick_von_Hand_beendet_ihn) {
    // Place 0: a scheme, which sets the boxes as it lists them.
    for (const auto& [kasten, danach] : {std::pair{2, "34"}, {3, "24"}, {1, "1"}, {0, "23"}}) {
        Zufallsbühne b({0});
        b.Modell.Schemas[1].Anzahl = 2;
        b.Modell.Schemas[1].Kategorien[1] = 2;
        b.Modell.Schemas[1].Kategorien[2] = 3;
        b.Kategorien.Anz_Kat_Schemas_setzen(1);
        b.Einstellungen.auto_Kat_Wechsel_Status = true;
        b.Knöpfe.auto_Kat_Wechsel.wert(true);
        b.Rechner.Zufall = {0.34F};
        b.Knöpfe.Autoplay.wert(true);
        EXPECT_EQ(b.Kästen(), "3");
        EXPECT_EQ(b.Kategorien.zeige_Kategorie(2).farbe(), b.Einstellungen.automatische_Kategorien_Farbe);
        EXPECT_TRUE(b.Knöpfe.auto_Kat_Wechsel.sichtbar());
        if (kasten == 0)
            Hand::klicken(b.Kategorien.Kategorie_Schema(1));
        else
            Hand::klicken(b.Kategorien.zeige_Kategorie(kasten));
        EXPECT_EQ(b.Kästen(), danach) << "box " << kasten;
        EXPECT_FALSE(b.Einstellungen.auto_Kat_Wechsel_Status);
        EXPECT_FALSE(b.Knöpfe.auto_Kat_Wechsel.wert());
        EXPECT_EQ(b.Kategorien.zeige_Kategorie(2).farbe(), Farbe_Standard);
    }
}

// All of the pool on show: the draw waits for the user, and ticks that come meanwhile do not pile up more of them.
TEST(Kategoriewechsel, Zug_ohne_Ende) {
    Zufallsbühne b({0});
    b.Knöpfe.auto_Kat_Wechsel.wert(true);
    b.Rechner.Zufall = {0.0F};
    b.Knöpfe.Autoplay.wert(true);
    EXPECT_EQ(b.Kästen(), "2");
    b.Kategorien.Auto_Wechsel_Kategorie[3] = b.Kategorien.Auto_Wechsel_Kategorie[4] = false;
    b.Automatik.Wechsel.Kategorie_wechseln();  // a pool of one: all but it
    for (const int k : {2, 3, 4}) Hand::rechtsklicken(b.Kategorien.zeige_Kategorie(k), -1);
    int Runden = 0, Tiefe = 0, tiefste = 0;
    b.Ansicht.Runde = [&] {
        tiefste = std::max(tiefste, ++Tiefe);
        if (++Runden < 5)
            b.Automatik.Wechsel.Kategorie_wechseln();
        else if (Runden == 5)
            Hand::klicken(b.Kategorien.zeige_Kategorie(3));
        --Tiefe;
    };
    b.Automatik.Wechsel.Kategorie_wechseln();
    EXPECT_EQ(Runden, 5);
    EXPECT_EQ(tiefste, 1);
    EXPECT_FALSE(b.Einstellungen.auto_Kat_Wechsel_Status);
}

// A player that is always stopped at the look: every tick is the end of a song.
TEST(Autoplay, Reihe_Fehlzähler_und_Kategorie) {
    Zufallsbühne b({0, 0, 0});
    b.Einstellungen.Random_Autoplay = false;
    const auto gespielt = [&b] {
        std::string nummern;
        for (const Text& zeile : b.nehmen())
            if (const auto stelle = zeile.find(".MP3"); stelle != Text::npos) nummern += zeile[stelle - 1];
        return nummern;
    };
    b.Knöpfe.Autoplay.wert(true);
    EXPECT_EQ(b.Knöpfe.Zufallslied_starten.beschriftung(), "&nächstes");
    // The start brings the player up in time, playing.
    b.Shell.nach_dem_Start = [&b] {
        if (b.Fenster.Fenster.empty()) b.Spieler_erscheint();
        b.Fenster.Fenster.front().Status = 1;
    };
    b.Spiel.Takt.Timer_Timer();
    EXPECT_EQ(gespielt(), "1") << "also without a player, and not twice by the tick inside";
    for (int i = 0; i < 4; ++i) {
        b.Spiel.Takt.Timer_Timer();
        b.Fenster.Fenster.front().Status = 0;
        b.Spiel.Takt.Timer_Timer();
    }
    EXPECT_EQ(gespielt(), "2312");

    // The player that still stops at the tick inside gets one more song.
    int Starts = 0;
    b.Shell.nach_dem_Start = [&] { b.Fenster.Fenster.front().Status = ++Starts == 1 ? 0 : 1; };
    b.Fenster.Fenster.front().Status = 0;
    b.Spiel.Takt.Timer_Timer();
    EXPECT_EQ(gespielt(), "31");

    // Without a player: four ticks. One that comes in between does not count them anew.
    b.Fenster.Fenster.clear();
    for (int i = 0; i < 2; ++i) b.Spiel.Takt.Timer_Timer();
    b.Spieler_erscheint(1);
    b.Spiel.Takt.Timer_Timer();
    b.Fenster.Fenster.clear();
    b.Spiel.Takt.Timer_Timer();
    EXPECT_TRUE(b.Knöpfe.Autoplay.wert());
    b.Spiel.Takt.Timer_Timer();
    EXPECT_FALSE(b.Knöpfe.Autoplay.wert());
    EXPECT_EQ(b.Knöpfe.Zufallslied_starten.beschriftung(), "&Random");
    EXPECT_EQ(gespielt(), "");

    // An empty list ends it at once, in both tabs.
    b.Spieler_erscheint(0);
    b.Lieder.Nr_Liste_setzen({});
    b.Lieder.erstelle_Liste_von_Nr_Liste();
    b.Knöpfe.Autoplay.wert(true);
    b.Spiel.Takt.Timer_Timer();
    EXPECT_FALSE(b.Knöpfe.Autoplay.wert());
}

TEST(Autoplay, Wechselt_die_Kategorie_nach_so_vielen_Liedern) {
    Zufallsbühne b({0, 0, 0, 0, 0, 0});
    b.Einstellungen.Random_Autoplay = false;
    b.Einstellungen.auto_Kat_Wechsel_Status = true;
    b.Einstellungen.auto_Kat_Wechsel_Lieder = 2;
    b.Spieler_erscheint(0);
    b.Fenster.Fenster.front().Status = 0;
    b.Rechner.Zufall = {0.0F};
    b.Knöpfe.Autoplay.wert(true);
    EXPECT_EQ(b.Kästen(), "2");
    std::string verlauf;
    for (const float R : {0.99F, 0.99F, 0.0F, 0.0F}) {
        b.Rechner.Zufall = {R};
        b.Shell.nach_dem_Start = [&b] { b.Fenster.Fenster.front().Status = 1; };
        b.Fenster.Fenster.front().Status = 0;
        b.Spiel.Takt.Timer_Timer();
        verlauf += b.Kästen();
    }
    EXPECT_EQ(verlauf, "2442");
}

TEST(Liedstart, Nächstes_und_rechte_Taste) {
    Zufallsbühne b({2, 1, 0});
    const auto drücken = [&b] {
        Hand::klicken(b.Knöpfe.Zufallslied_starten);
        const auto protokoll = b.nehmen();
        return Zahltext(b.Lieder.Liste.gewählt()) + (protokoll.empty() ? "" : "!");
    };
    Hand::rechtsklicken(b.Knöpfe.Zufallslied_starten, -1);
    EXPECT_EQ(b.Lieder.gewähltes_Lied(), 3);
    EXPECT_TRUE(b.Protokoll.empty());
    b.Spieler_erscheint();
    b.Knöpfe.Autoplay.wert(true);
    b.Knöpfe.Autoplay_Random.wert(true);
    b.Knöpfe.Autoplay_Random.wert(false);
    EXPECT_FALSE(b.Einstellungen.Random_Autoplay);
    // From the last line the press only leads to the first one.
    EXPECT_EQ(drücken(), "0");
    EXPECT_EQ(drücken(), "1!");
    EXPECT_EQ(drücken(), "2!");
    b.Knöpfe.Autoplay.wert(false);
    EXPECT_EQ(drücken(), "1!") << "by chance again, and though it was just heard: nothing else is in the share";
}

TEST(Zufalls_Playlist, Jedes_Lied_einmal_und_die_Fragen) {
    struct {
        Text Antwort;
        int Prozent;
        std::vector<float> R;
        std::vector<Long> Lieder;
    } const fälle[] = {
        {"3", 100, {0.0F, 0.0F, 0.0F}, {4, 3, 2}},
        {"9", 100, {0.9F, 0.9F, 0.9F, 0.9F}, {1, 2, 3, 4}},
        {"2,7", 50, {0.9F, 0.9F}, {3, 2}},  // the share of what is left
        {"0.4", 25, {}, {}},
        {"", 25, {}, {}},
    };
    for (const auto& f : fälle) {
        Zufallsbühne b({3, 2, 1, 0}, f.Prozent);
        std::vector<Long> gewählt;
        b.Automatik.Zufallsliste.in_Playlist = [&](const std::vector<Long>& lieder) { gewählt = lieder; };
        b.Automatik.Zufallsliste.Playlist_leeren = [] {};
        b.Ansicht.Antworten = {f.Antwort};
        b.Rechner.Zufall.assign(f.R.begin(), f.R.end());
        b.Automatik.Zufallsliste.erstellen();
        EXPECT_EQ(gewählt, f.Lieder) << f.Antwort;
        EXPECT_TRUE(b.Rechner.Zufall.empty());
    }
}

}  // namespace
}  // namespace tonkartei
