// The choice of the next song: chance, order, change of category.
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

// The areas of the main window that chance looks at.
struct Zufallsbühne : Bühne {
    tonkartei::Fenster Haupt{ansicht, "Tonkartei", "Tonkartei"};
    Datenbankraum Datenbank{haus};
    Albenraum Album{Datenbank};
    Kategorienraum Kategoriefenster{haus};
    Kategorienbereich Kategorien{Haupt, modell, einstellungen, Kategoriefenster.bearbeiten};
    Listenbereich Lieder{Haupt, haus, Album, Kategorien};
    Wiedergabebereich Knöpfe{Haupt};
    Liedautomatik Automatik{haus, Album.start, Spiel, {Lieder, Kategorien, Knöpfe}};

    // A song a count.
    explicit Zufallsbühne(const std::vector<Long>& Anzahlen, int prozent = 25) : Bühne(static_cast<int>(Anzahlen.size())) {
        einstellungen.Random_Einstellung = als_Byte(prozent);
        modell.Anzahl_Kategorien = 4;
        for (Long nr = 1; nr <= modell.Anzahl_Lieder; ++nr) {
            modell.Lieder[nr].Anzahl = Anzahlen[static_cast<std::size_t>(nr - 1)];
            modell.Lieder[nr].Kategorie = als_Byte(2 + nr % 3);
        }
        Kategorien.Auswahl_geändert.verbinden([this] { Lieder.aktualisiere_Liste(); });
        Kategorien.aktualisiere_Kategorie_List(false);
        std::vector<long long> nummern;
        for (Long nr = 1; nr <= modell.Anzahl_Lieder; ++nr) nummern.push_back(nr);
        zeige(nummern);
    }
    void zeige(const std::vector<long long>& nummern) {
        Lieder.Nr_Liste_setzen(nummern);
        Lieder.erstelle_Liste_von_Nr_Liste();
    }
    void gespielt(Long nr) { Spiel.Zählung.Gespielt_Liste[++Spiel.Zählung.Gespielt_Anzahl] = nr; }
    void zufall(const std::vector<double>& werte) {
        for (const double wert : werte) rechner.Zufall_bestellen(wert);
    }
    // All that were ordered have been drawn.
    bool verbraucht() {
        rechner.Zufall_bestellen(0.4321);
        return rechner.Zufallszahl() == static_cast<float>(0.4321);
    }
    Long ziehe(double R) {
        zufall({R});
        return Automatik.Zufall.Zufallslied_wählen();
    }
    // Which categories are on show: "1" for all, "24" for two of them.
    std::string Kästen() {
        std::string text;
        for (int k = 1; k <= modell.Anzahl_Kategorien; ++k)
            if (Kategorien.zeige_Kategorie(k).wert()) text += Zahltext(k);
        return text;
    }
    // The songs that went to the player since the last look.
    std::string gestartet() {
        std::string nummern;
        for (const Text& zeile : nehmen())
            if (const auto stelle = zeile.find(".MP3"); stelle != Text::npos) nummern += zeile[stelle - 1];
        return nummern;
    }
    void Takt() { Spiel.Takt.Timer_Timer(); }
    // The player comes to the end of its song.
    void Lied_endet() {
        fenster.von_Klasse(WinAmp_Klasse).front()->Status = 0;
        Takt();
    }
};

TEST(Zufall, Anteil_der_sortierten_Liste) {
    const std::vector<Long> sieben{3, 2, 1, 0, 9, 9, 9};
    const std::vector<Long> fünfzig(50, 0);
    struct {
        std::vector<Long> Anzahlen;
        int Prozent;
        double R;
        Long Lied;
    } const fälle[] = {
        {sieben, 25, 0.0, 4},      {sieben, 25, 0.5714, 4},    {sieben, 25, 0.5715, 3},
        {sieben, 25, 0.9999, 3},   {{5, 5, 4}, 25, 0.9999, 3}, {fünfzig, 25, 0.0, 1},
        {fünfzig, 25, 0.9999, 13}, {sieben, 100, 0.9999, 7},  // equal counts: the lower number first
        {sieben, 1, 0.9999, 4},    {{7}, 25, 0.5, 1},          {sieben, 200, 0.9999, 7},  // a registry changed by hand
        {{-5, 0, -4}, 1, 0.0, 3},                                                         // as text, not as numbers
    };
    for (const auto& f : fälle) {
        Zufallsbühne b(f.Anzahlen, f.Prozent);
        EXPECT_EQ(b.ziehe(f.R), f.Lied) << f.Anzahlen.size() << " songs, " << f.Prozent << " %, " << f.R;
        EXPECT_EQ(b.Lieder.gewähltes_Lied(), f.Lied);
        EXPECT_TRUE(b.nehmen().empty()) << "nothing is started";
    }
    EXPECT_EQ(Zufallsbühne({}).ziehe(0), 0);
    // A list of songs of a collection that is no longer open.
    Zufallsbühne b({0});
    b.modell.Datenbank_offen = false;
    EXPECT_EQ(b.ziehe(0), 0);
    Hand::klicken(b.Knöpfe.Lied_starten);
    EXPECT_EQ(b.gestartet(), "");
}

TEST(Zufall, Vor_kurzem_gespielte_erst_nach_hundert_Versuchen) {
    Zufallsbühne b({0, 0, 0, 0}, 50);
    b.gespielt(1);
    b.zufall({0.0, 0.4});
    EXPECT_EQ(b.ziehe(0.6), 2);
    EXPECT_TRUE(b.verbraucht());
    b.gespielt(2);
    b.zufall(std::vector<double>(100, 0.0));
    EXPECT_EQ(b.ziehe(0.9), 2) << "the 101st value stands";
    EXPECT_TRUE(b.verbraucht());
}

TEST(Zufall, Eine_doppelte_Nummer_und_eine_überlange_Anzahl) {
    Zufallsbühne b({0, 1, 1});
    b.zeige({2, 1, 3, 1});
    EXPECT_EQ(b.ziehe(0), 1);
    EXPECT_EQ(b.Lieder.Liste.gewählt(), 3) << "the last line with that number";
    // More than eight digits leave the field out; what moves forward is no song.
    b.modell.Lieder[2].Anzahl = 123456789;
    b.zeige({2});
    EXPECT_EQ(b.ziehe(0), 0);
    EXPECT_EQ(b.Lieder.Liste.gewählt(), 0);
}

TEST(Zufall, Im_Album_nur_was_da_ist) {
    Zufallsbühne b({5, 4, 3, 2});
    b.modell.Alben_geladen = true;
    b.Album.alben.eigene.Anzahl = 1;
    tonkartei::Album& album = b.Album.alben.eigene.Alben[1];
    album.Titel_Anzahl = 5;
    const Long links[] = {1, 0, 4, 2, 1};
    for (int t = 1; t <= 5; ++t) {
        album.Lieder[t].in_Datenbank = links[t - 1] > 0;
        album.Lieder[t].Lied_Nr = links[t - 1];
    }
    b.Lieder.Datenbank_Modus.wert(1);
    EXPECT_EQ(b.ziehe(0), 0) << "no album is chosen";
    EXPECT_FALSE(b.verbraucht());
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
    for (int t = 1; t <= 5; ++t) album.Lieder[t].in_Datenbank = false;
    b.ansicht.Ereignisrunden = 0;
    b.ansicht.Runde = [&] {
        EXPECT_FALSE(b.Automatik.Folge.nächster_Titel()) << "no second search inside";
        if (b.ansicht.Ereignisrunden == 50) b.Lieder.Datenbank_Modus.wert(0);
    };
    EXPECT_FALSE(b.Automatik.Folge.nächster_Titel());
    EXPECT_EQ(b.ansicht.Ereignisrunden, 50);
}

TEST(Kategoriewechsel, Topf_und_Zug) {
    struct {
        std::string Kästen;
        std::vector<double> R;
        std::string danach;
        std::string dann;  // after a second change, whose draws would give the first and the last of the pool
    } const fälle[] = {
        {"1", {0.0}, "2", "4"},  // all: the pool is 2, 3, 4
        {"1", {0.34}, "3", "2"},  {"1", {0.9999}, "4", "2"}, {"24", {0.0}, "2", "4"},
        {"24", {0.5}, "4", "2"},  {"3", {}, "3", "24"},  // one alone asks nobody; again it gives all but that one
        {"", {0.0}, "2", "34"},                          // no pool: any but the first
        {"", {0.9999}, "4", "2"},
    };
    for (const auto& f : fälle) {
        Zufallsbühne b({0});
        b.Kategorien.zeige_Kategorie(1).wert(false);
        for (const char k : f.Kästen) b.Kategorien.zeige_Kategorie(k - '0').wert(true);
        b.zufall(f.R);
        b.Knöpfe.auto_Kat_Wechsel.wert(true);
        b.Knöpfe.Autoplay.wert(true);
        EXPECT_EQ(b.Kästen(), f.danach) << f.Kästen;
        EXPECT_TRUE(b.verbraucht());
        b.zufall({0.0, 0.9999});
        b.Automatik.Wechsel.Kategorie_wechseln();
        EXPECT_EQ(b.Kästen(), f.dann) << f.Kästen;
    }
    Zufallsbühne b({0});
    b.modell.Anzahl_Kategorien = 12;
    for (const int k : {2, 10, 11}) b.Kategorien.Auto_Wechsel_Kategorie[k] = true;
    b.zufall({0.0});
    b.Automatik.Wechsel.Kategorie_wechseln();
    EXPECT_TRUE(b.Kategorien.zeige_Kategorie(10).wert()) << "lines are text, and ten comes before two";
}

TEST(Kategoriewechsel, Ein_Klick_von_Hand_beendet_ihn) {
    // Place 0: a scheme, which sets the boxes as it lists them.
    for (const auto& [kasten, danach] : {std::pair{2, "34"}, {3, "24"}, {1, "1"}, {0, "23"}}) {
        Zufallsbühne b({0});
        b.modell.Schemas[1].Anzahl = 2;
        b.modell.Schemas[1].Kategorien[1] = 2;
        b.modell.Schemas[1].Kategorien[2] = 3;
        b.Kategorien.Anz_Kat_Schemas_setzen(1);
        b.Knöpfe.auto_Kat_Wechsel.wert(true);
        b.zufall({0.34});
        b.Knöpfe.Autoplay.wert(true);
        EXPECT_EQ(b.Kästen(), "3");
        EXPECT_EQ(b.Kategorien.zeige_Kategorie(2).farbe(), b.einstellungen.automatische_Kategorien_Farbe);
        EXPECT_TRUE(b.Knöpfe.auto_Kat_Wechsel.sichtbar());
        if (kasten == 0)
            Hand::klicken(b.Kategorien.Kategorie_Schema(1));
        else
            Hand::klicken(b.Kategorien.zeige_Kategorie(kasten));
        EXPECT_EQ(b.Kästen(), danach) << "box " << kasten;
        EXPECT_FALSE(b.einstellungen.auto_Kat_Wechsel_Status);
        EXPECT_FALSE(b.Knöpfe.auto_Kat_Wechsel.wert());
        EXPECT_EQ(b.Kategorien.zeige_Kategorie(2).farbe(), Farbe_Standard);
    }
}

// All of the pool on show: the draw waits for the user, and ticks that come meanwhile do not pile up more of them.
TEST(Kategoriewechsel, Zug_ohne_Ende) {
    Zufallsbühne b({0});
    b.Knöpfe.auto_Kat_Wechsel.wert(true);
    b.zufall({0.0});
    b.Knöpfe.Autoplay.wert(true);
    b.Kategorien.Auto_Wechsel_Kategorie[3] = b.Kategorien.Auto_Wechsel_Kategorie[4] = false;
    b.Automatik.Wechsel.Kategorie_wechseln();  // a pool of one: all but it
    for (const int k : {2, 3, 4}) Hand::rechtsklicken(b.Kategorien.zeige_Kategorie(k), -1);
    int Runden = 0, Tiefe = 0, tiefste = 0;
    b.ansicht.Runde = [&] {
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
    EXPECT_FALSE(b.einstellungen.auto_Kat_Wechsel_Status);
}

TEST(Autoplay, der_Reihe_nach_bis_kein_Spieler_mehr_da_ist) {
    Zufallsbühne b({0, 0, 0});
    b.einstellungen.Random_Autoplay = false;
    b.Knöpfe.Autoplay.wert(true);
    EXPECT_EQ(b.Knöpfe.Zufallslied_starten.beschriftung(), "&nächstes");
    b.Takt();
    EXPECT_EQ(b.gestartet(), "1") << "also without a player, and not twice by the tick inside";
    for (int i = 0; i < 4; ++i) {
        b.Takt();
        b.Lied_endet();
    }
    EXPECT_EQ(b.gestartet(), "2312");
    // One that hangs is as last seen, and plays on.
    Spieler& spieler = *b.fenster.von_Klasse(WinAmp_Klasse).front();
    spieler.hängt = true;
    for (int i = 0; i < 5; ++i) b.Takt();
    EXPECT_EQ(b.gestartet(), "");
    // Without a player: four ticks. One that comes in between does not count them anew.
    b.fenster.Fenster_stirbt(WinAmp_Klasse);
    for (int i = 0; i < 2; ++i) b.Takt();
    b.Spieler_läuft();
    b.Takt();
    b.fenster.Fenster_stirbt(WinAmp_Klasse);
    b.Takt();
    EXPECT_TRUE(b.Knöpfe.Autoplay.wert());
    b.Takt();
    EXPECT_FALSE(b.Knöpfe.Autoplay.wert());
    EXPECT_EQ(b.Knöpfe.Zufallslied_starten.beschriftung(), "&Random");
    EXPECT_EQ(b.gestartet(), "");
    // An empty list ends it at once.
    b.Spieler_läuft(0);
    b.zeige({});
    b.Knöpfe.Autoplay.wert(true);
    b.Takt();
    EXPECT_FALSE(b.Knöpfe.Autoplay.wert());
}

// The window that is found is a stranger's, which never plays: every start finds it stopped and begins another one inside.
TEST(Autoplay, verschachtelte_Starts_haben_ein_Ende) {
    Zufallsbühne b(std::vector<Long>(3, 0));
    b.einstellungen.Random_Autoplay = false;
    b.Spieler_läuft();
    b.fenster.neues_Fenster("Fremde Tonkartei");
    b.Knöpfe.Autoplay.wert(true);
    b.Takt();
    EXPECT_EQ(b.gestartet(), "123123123") << "the first one, and eight inside it";
    EXPECT_FALSE(b.Knöpfe.Autoplay.wert());
    b.fenster.Fenster_stirbt("Fremde Tonkartei");
    b.Knöpfe.Autoplay.wert(true);
    b.Lied_endet();
    EXPECT_EQ(b.gestartet(), "1") << "from the beginning again";
}

TEST(Autoplay, Wechselt_die_Kategorie_nach_so_vielen_Liedern) {
    Zufallsbühne b({0, 0, 0, 0, 0, 0});
    b.einstellungen.Random_Autoplay = false;
    b.einstellungen.auto_Kat_Wechsel_Status = true;
    b.einstellungen.auto_Kat_Wechsel_Lieder = 2;
    b.Spieler_läuft();
    b.zufall({0.0});
    b.Knöpfe.Autoplay.wert(true);
    std::string verlauf = b.Kästen() + ":";
    for (int i = 0; i < 4; ++i) {
        if (i % 2 == 1) b.zufall({i == 1 ? 0.99 : 0.0});
        b.Lied_endet();
        verlauf += b.Kästen();
    }
    EXPECT_EQ(verlauf, "2:2442");
}

TEST(Liedstart, Nächstes_und_rechte_Taste) {
    Zufallsbühne b({2, 1, 0});
    const auto drücken = [&b] {
        Hand::klicken(b.Knöpfe.Zufallslied_starten);
        return Zahltext(b.Lieder.Liste.gewählt()) + (b.gestartet().empty() ? "" : "!");
    };
    Hand::rechtsklicken(b.Knöpfe.Zufallslied_starten, -1);
    EXPECT_EQ(b.Lieder.gewähltes_Lied(), 3);
    EXPECT_TRUE(b.nehmen().empty());
    b.Spieler_läuft();
    b.Knöpfe.Autoplay.wert(true);
    b.Knöpfe.Autoplay_Random.wert(true);
    b.Knöpfe.Autoplay_Random.wert(false);
    EXPECT_FALSE(b.einstellungen.Random_Autoplay);
    // From the last line the press only leads to the first one.
    EXPECT_EQ(drücken(), "0");
    EXPECT_EQ(drücken(), "1!");
    EXPECT_EQ(drücken(), "2!");
    b.Knöpfe.Autoplay.wert(false);
    EXPECT_EQ(drücken(), "1!") << "by chance again, and though it was just heard: nothing else is in the share";
}

TEST(Zufalls_Playlist, Anteil_an_dem_was_noch_da_ist) {
    Zufallsbühne b({3, 2, 1, 0}, 50);
    std::vector<Long> gewählt;
    b.Automatik.Zufalls_Playlist.in_Playlist.verbinden([&](const std::vector<Long>& lieder) { gewählt = lieder; });
    b.ansicht.Eingaben = {"0.4", "2,7"};
    b.zufall({0.9, 0.9});
    for (int i = 0; i < 2; ++i) b.Automatik.Zufalls_Playlist.erstellen();
    EXPECT_EQ(gewählt, (std::vector<Long>{3, 2}));
}

}  // namespace
}  // namespace tonkartei
