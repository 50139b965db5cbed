// The laws of both desks at all their values, and what scenes of the whole program are too coarse for.
#include <gtest/gtest.h>

#include "dj/alt/kidnap.hpp"
#include "dj/alt/mischgesetz_alt.hpp"
#include "dj/fadetafel.hpp"
#include "dj/mischgesetz.hpp"
#include "dj/mischung.hpp"
#include "dj/spielerfeld.hpp"
#include "dj/striche.hpp"
#include "oberflaeche/fenster.hpp"
#include "probe/probehaus.hpp"
#include "probe/stumme_ansicht.hpp"

using namespace tonkartei;

namespace {

struct Pult : Fenster {
    explicit Pult(Ansicht& ansicht) : Fenster(ansicht, "Pult", "Pult") {}
    Mischung mischung{*this};
    Fadetafel tafel{*this};
    Spielerfeld feld{*this, "", 1};
};

struct DJ : testing::Test {
    Stumme_Ansicht ansicht;
    Pult pult{ansicht};
};

}  // namespace

TEST_F(DJ, AnteileBeiJedemWert) {
    for (int v = 0; v <= 100; ++v) {
        const int eins = v <= 50 ? 100 : 200 - 2 * v, zwei = v <= 50 ? 2 * v : 100;
        for (int k = 1; k <= 3; ++k) pult.mischung.Fader(k).wert(v);
        for (const int paar : {1, 2}) {
            EXPECT_EQ(pult.mischung.Fader_Anteil(paar, 1), eins) << v;
            EXPECT_EQ(pult.mischung.Fader_Anteil(paar, 2), zwei) << v;
        }
        // Both factors at once: 12.5 and the like fall to the even side.
        const int anteil[] = {gerundet(eins * eins / 100.0), gerundet(zwei * eins / 100.0), gerundet(eins * zwei / 100.0),
                              gerundet(zwei * zwei / 100.0)};
        for (int n = 1; n <= 4; ++n) EXPECT_EQ(pult.mischung.Gesamt_Anteil(n), anteil[n - 1]) << v << " " << n;
        EXPECT_EQ(pult.mischung.Gesamt_Anteil(5), 0);
    }
    // 250 where everything is full; 187.5 and 2.5 are ties.
    const std::tuple<Long, Long, Long> laut[] = {{80, 75, 150}, {100, 100, 250}, {100, 75, 188},
                                                 {100, 1, 2},   {50, 6, 8},      {0, 100, 0}};
    for (const auto& [anteil, prozent, wert] : laut) EXPECT_EQ(Mischgesetz::Lautstärke(anteil, prozent), wert) << anteil;
}

TEST_F(DJ, LautstärkeUndHelligkeitEinesPlayers) {
    const std::tuple<int, int> regler[] = {{0, 100}, {8192, 75}, {16384, 50}, {164, 99}, {32768, 0}};
    for (const auto& [wert, prozent] : regler) {
        pult.feld.Player_Lautstärke.wert(wert);
        EXPECT_EQ(pult.feld.Lautstärke(), prozent) << wert;
    }
    pult.feld.Lautstärke(75);
    EXPECT_EQ(pult.feld.Player_Lautstärke.wert(), 8192);
    for (const auto& [anteil, grau] : {std::pair{0, 0}, {1, 2}, {3, 8}, {100, 250}}) {
        pult.feld.Helligkeit(anteil);
        EXPECT_EQ(pult.feld.Player_Position.farbe(), RGB(grau, grau, grau));
        EXPECT_EQ(pult.feld.Player_Position.hintergrund(), RGB(grau, grau, grau));
    }
}

TEST_F(DJ, FadezeitBleibtKürzerAlsAutozeit) {
    pult.laden();
    pult.tafel.beginnen();
    const auto zeiten = [this] {
        return std::pair{Fadetafel::Sekunden(pult.tafel.Fadezeit), Fadetafel::Sekunden(pult.tafel.Autozeit)};
    };
    EXPECT_EQ(zeiten(), std::pair(5, 13));
    for (int fade = 2; fade <= 30; ++fade)
        for (int automatik = 3; automatik <= 60; ++automatik) {
            pult.tafel.Autozeit_Scroll.wert(63 - automatik);
            pult.tafel.Fadezeit_Scroll.wert(33 - fade);
            ASSERT_EQ(zeiten(), std::pair(fade, std::max(automatik, fade + 1)));
            pult.tafel.Autozeit_Scroll.wert(63 - automatik);
            ASSERT_EQ(zeiten(), std::pair(std::min(fade, automatik - 1), automatik));
        }
}

TEST_F(DJ, StricheFüllenDieBreite) {
    // A character of 10 points is 120 wide.
    const std::tuple<int, const char*, int> fälle[] = {{1200, "Alle", 5}, {1199, "Alle", 5}, {1201, "Alle", 6},
                                                       {480, "Alle", 0},  {481, "Alle", 0},  {601, "Alle", 1},
                                                       {-120, "", 0},     {60000, "x", 498}};
    for (const auto& [breite, text, striche] : fälle) EXPECT_EQ(Strich_Anzahl(ansicht, breite, text, 10), striche) << breite;
    EXPECT_EQ(Striche_bis(ansicht, 1200, "PopAA", 10), 5);
}

TEST(DJ_alt, MischungUndStartpunkt) {
    using namespace Mischgesetz_alt;
    for (int c = 0; c <= 200; ++c)
        for (const Long regler : {0, 100, 200}) {
            EXPECT_EQ(Mischgesetz_alt::Lautstärke(1, regler, c), c <= 100 ? regler : gerundet(regler * (200 - c) / 100.0))
                << c;
            EXPECT_EQ(Mischgesetz_alt::Lautstärke(2, regler, c), c >= 100 ? regler : gerundet(regler * c / 100.0)) << c;
        }
    EXPECT_EQ(Mischgesetz_alt::Lautstärke(2, 191, 50), 96) << "95.5";
    EXPECT_EQ(Mischgesetz_alt::Lautstärke(2, 255, 50), 127) << "2.55 is a little less";
    for (int punkt = 0; punkt <= 45; ++punkt) {
        const double k = Startpunkt(punkt);
        EXPECT_DOUBLE_EQ(k * (50 - punkt), 4);
        int frei = 0;
        for (int c = 0; c <= 200; ++c) frei += im_Startbereich(c, k);
        EXPECT_EQ(frei > 0, punkt < 42) << punkt;
    }
    EXPECT_FALSE(im_Startbereich(40, Startpunkt(30)));
    EXPECT_TRUE(im_Startbereich(41, Startpunkt(30)) && im_Startbereich(159, Startpunkt(30)));
    const std::pair<int, int> farben[] = {{100, 2}, {91, 6}, {109, 6}, {110, 12}, {90, 12}, {0, 12}};
    for (const auto& [c, farbe] : farben) EXPECT_EQ(Mittenfarbe(c, false), farbe) << c;
    EXPECT_EQ(Mittenfarbe(100, true), 14);
}

TEST(DJ_alt, GekaperteFensterGehenZurück) {
    Probehaus probe;
    probe.fenster.Prozess_gestartet(probe.ordner.pfad("WinAmp.Exe") + " /CLASS=\"Fremd\"");
    const Hwnd fenster = probe.fenster.von_Klasse("Fremd").at(0)->Griff;
    Kidnap kidnap(probe.haus.plattform.Fenstersystem);
    kidnap.Gekaperte_Fenster[100] = {true, fenster, 11, 22, 33};
    kidnap.Gekaperte_Fenster[1] = {false, fenster, 1, 2, 3};
    kidnap.alle_Fenster_zurückgeben();
    EXPECT_FALSE(kidnap.Gekaperte_Fenster[100].aktiv);
    EXPECT_EQ(probe.fenster.von_Klasse("Fremd").at(0)->Elter, 33);
    EXPECT_EQ(probe.fenster.SetWindowLongA(fenster, -16, 0), 11);
    EXPECT_EQ(probe.fenster.SetWindowLongA(fenster, -20, 0), 22);
}
