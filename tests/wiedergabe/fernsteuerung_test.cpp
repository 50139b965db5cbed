// The remote control: what its controls send, what the tick shows, how the panel moves.
#include <gtest/gtest.h>

#include <limits>

#include "oberflaeche/fenster.hpp"
#include "oberflaeche/hand.hpp"
#include "wiedergabe/buehne.hpp"
#include "wiedergabe/fernsteuerung.hpp"

namespace tonkartei {
namespace {

constexpr Long kleinste = std::numeric_limits<Long>::min(), größte = std::numeric_limits<Long>::max();

struct Tafelbühne : Bühne {
    tonkartei::Fenster Fenster_{Ansicht, "Tonkartei", "Tonkartei"};
    Knopf Ecke{Fenster_, "Ecke"};
    Fernsteuerung Tafel{Fenster_, Einstellungen, Spiel.Spieler, Rechner, Ecke};
    int Zufallslieder = 0;

    Tafelbühne() {
        Ecke.lage({150, 405, 1790, 420});
        Tafel.WinAmp_Show.lage({6183, 408, 210, 927});
        Tafel.WinAmp_Position.lage({90, 500, 5000, 225});
        Tafel.Zufallslied_gewünscht.verbinden([this] { ++Zufallslieder; });
        Spiel.Takt.Anzeige_Schritt.verbinden([this] { Tafel.anzeigen(); });
        Tafel.Fernsteuerung_öffnen(false);
    }
    // A click that lasts so long.
    void klick(Element& element, int ms, int x = 0) {
        Hand::drücken(element, x, 0);
        Rechner.Uhr_ms += ms;
        Hand::loslassen(element, x, 0);
    }
};

Text gesendet(int nachricht, Long w, int l) {
    return "senden 7 " + Zahltext(nachricht) + " " + Zahltext(w) + " " + Zahltext(l);
}

TEST(Fernsteuerung, der_Takt_zeigt_was_der_Spieler_sagt) {
    const struct {
        std::int32_t Status;
        bool vorwärts;
        Long Position, Länge;
        Text Zeit;
        int max, wert;
    } fälle[] = {
        {1, true, 61500, 200, "01:02", 200, 62},  // ties to the even second
        {1, true, 60500, 200, "01:00", 200, 60},         {1, false, 61500, 200, "-02:18", 200, 62},
        {3, true, 61500, 200, "|| 01:02", 200, 62},      {0, true, 61500, 200, "STOP", 200, 62},
        {1, true, 3661000, 4000, "01:01", 4000, 3661},   {3, false, 10000, -1, "|| -00:11", 1, 0},
        {1, true, kleinste, größte, "31:24", größte, 0}, {1, false, kleinste, größte, "-45:31", größte, 0},
        {3, false, größte, kleinste, "|| -45:32", 1, 0},
    };
    for (const auto& f : fälle) {
        Tafelbühne b;
        b.Spieler_erscheint(f.Status);
        b.Einstellungen.WinAmp_Zeit_vorwärts = f.vorwärts;
        b.Fenster.Position = f.Position;
        b.Fenster.Länge = f.Länge;
        b.Spiel.Takt.Timer_Timer();
        EXPECT_EQ(b.Tafel.WinAmp_Zeit.beschriftung(), f.Zeit);
        EXPECT_EQ(b.Tafel.WinAmp_Position.max(), f.max) << f.Zeit;
        EXPECT_EQ(b.Tafel.WinAmp_Position.wert(), f.wert) << f.Zeit;
        EXPECT_TRUE(b.Protokoll.empty()) << "the slider that the tick moves seeks nothing: " << f.Zeit;
    }
}

TEST(Fernsteuerung, gehaltene_Griffe_wirken_im_Takt_und_nur_bei_offener_Tafel) {
    Tafelbühne b;
    b.Spieler_läuft();
    b.Spiel.Takt.Timer_Timer();
    for (Element* e : {static_cast<Element*>(&b.Tafel.WinAmp_vor), static_cast<Element*>(&b.Tafel.WinAmp_zurück),
                       static_cast<Element*>(&b.Tafel.WinAmp_Position)})
        Hand::drücken(*e, 0, 0);
    b.Fenster.Position = 90000;
    b.Spiel.Takt.Timer_Timer();
    EXPECT_EQ(b.nehmen(), (Aufzeichnung{gesendet(273, 40144, 0), gesendet(273, 40148, 0)}));
    EXPECT_EQ(b.Tafel.WinAmp_Position.wert(), 62) << "the user holds it";
    EXPECT_EQ(b.Tafel.WinAmp_Zeit.beschriftung(), "01:30");
    b.Tafel.Fernsteuerung_schließen(false);
    b.Spiel.Takt.Timer_Timer();
    EXPECT_TRUE(b.nehmen().empty());
    b.Fenster.Länge = 0;
    b.Tafel.Fernsteuerung_öffnen(false);
    b.Rechner.Uhr_ms += 1000;
    for (Element* e : {static_cast<Element*>(&b.Tafel.WinAmp_vor), static_cast<Element*>(&b.Tafel.WinAmp_zurück)})
        Hand::loslassen(*e, 0, 0);
    b.Spiel.Takt.Timer_Timer();
    EXPECT_TRUE(b.nehmen().empty());
    EXPECT_EQ(b.Tafel.WinAmp_Position.max(), 1) << "without a song, held or not";
}

TEST(Fernsteuerung, kurz_ist_was_in_dieselbe_Sekunde_fällt) {
    Tafelbühne b;
    b.Spieler_läuft();
    b.Tafel.WinAmp_Position.bereich(0, 199);
    const auto alle = [&](int ms) {
        const long long beginn = b.Rechner.Uhr_ms;
        for (Element* e : {static_cast<Element*>(&b.Tafel.WinAmp_vor), static_cast<Element*>(&b.Tafel.WinAmp_zurück),
                           static_cast<Element*>(&b.Tafel.WinAmp_Position)}) {
            b.Rechner.Uhr_ms = beginn;
            b.klick(*e, ms, 1234);
        }
        return b.nehmen();
    };
    EXPECT_EQ(alle(900), (Aufzeichnung{gesendet(1024, 0, 106), gesendet(1024, 50000, 106)}));
    EXPECT_EQ(b.Zufallslieder, 1);
    EXPECT_TRUE(alle(200).empty()) << "across the change of the second";
    b.Spiel.Spieler.WinAmp_da = false;
    EXPECT_TRUE(alle(0).empty());
    EXPECT_EQ(b.Zufallslieder, 2) << "the random song needs no player";
    Hand::loslassen(b.Tafel.WinAmp_vor, 0, 0);
    EXPECT_EQ(b.Zufallslieder, 2) << "a release without a press";
}

TEST(Fernsteuerung, Springen_rundet_zweimal_und_läuft_nicht_über) {
    const struct {
        int max, x;
        Long Millisekunden;
    } klicks[] = {{125, 125, 2000}, {199, 1234, 50000}, {200, 5000, 200000}, {größte, 5000, größte}, {200, 0, 0}};
    for (const auto& k : klicks) {
        Tafelbühne b;
        b.Spieler_läuft();
        b.Tafel.WinAmp_Position.bereich(0, k.max);
        b.klick(b.Tafel.WinAmp_Position, 0, k.x);
        EXPECT_EQ(b.nehmen(), Aufzeichnung{gesendet(1024, k.Millisekunden, 106)}) << k.max << " " << k.x;
        Hand::schieben(b.Tafel.WinAmp_Position, k.max);
        EXPECT_EQ(b.nehmen(), Aufzeichnung{gesendet(1024, k.max == größte ? größte : k.max * 1000, 106)});
    }
}

TEST(Fernsteuerung, Lautstärke_und_Befehle) {
    for (const bool da : {true, false}) {
        Tafelbühne b;
        b.Tafel.Einstellungen_setzen();
        EXPECT_EQ(b.Tafel.WinAmp_Vol.wert(), 75);
        if (da) b.Spieler_läuft();
        for (const auto& [wert, laut] : {std::pair{100, 255}, std::pair{50, 127}, std::pair{1, 3}}) {
            b.Tafel.WinAmp_Vol.wert(wert);
            EXPECT_EQ(b.nehmen(), da ? Aufzeichnung{gesendet(1024, laut, 122)} : Aufzeichnung{});
            EXPECT_EQ(b.Einstellungen.WinAmp_Lautstärke, wert);
        }
        for (const Long status : {Status_spielt, Status_Pause}) {
            b.Spiel.Spieler.WinAmp_Status = status;
            for (Knopf* knopf : {&b.Tafel.WinAmp_Play, &b.Tafel.Winamp_Pause, &b.Tafel.WinAmp_Stop}) Hand::klicken(*knopf);
        }
        const Aufzeichnung befehle{gesendet(273, 40046, 0), gesendet(273, 40047, 0), gesendet(273, 40045, 0),
                                   gesendet(273, 40046, 0), gesendet(273, 40047, 0)};
        EXPECT_EQ(b.nehmen(), da ? befehle : Aufzeichnung{});
    }
}

TEST(Fernsteuerung, Bewegung_in_zwanzig_Schritten) {
    Tafelbühne b;
    const Bereich offen{150, 405, 6243, 930}, marke = b.Tafel.WinAmp_Show.lage();
    std::vector<Bereich> lagen;
    b.Ansicht.Runde = [&] { lagen.push_back(b.Tafel.WinAmp_Frame.lage()); };
    b.Tafel.Fernsteuerung_schließen(true);
    auto hinaus = std::exchange(lagen, {});
    EXPECT_FALSE(b.Tafel.sichtbar());
    b.Tafel.Fernsteuerung_öffnen(true);
    ASSERT_EQ(lagen.size(), 20U);
    EXPECT_EQ(lagen.front(), marke);
    EXPECT_EQ(lagen[10].links, 3167) << "6183 - 3016.5 to the even one";
    EXPECT_EQ(b.Tafel.WinAmp_Frame.lage(), offen);
    for (const Bereich& l : lagen) {
        EXPECT_EQ(l.links + l.breite, offen.links + offen.breite);
        EXPECT_EQ(l.oben + l.höhe, offen.oben + offen.höhe);
    }
    std::reverse(hinaus.begin(), hinaus.end());
    EXPECT_EQ(hinaus, lagen);
}

// A movement that begins within another one has the last word.
TEST(Fernsteuerung, eine_Bewegung_in_der_anderen) {
    for (const bool auf : {true, false}) {
        Tafelbühne b;
        if (auf) b.Tafel.Fernsteuerung_schließen(false);
        int runden = 0;
        b.Ansicht.Runde = [&] {
            if (++runden == 7) auf ? b.Tafel.Fernsteuerung_schließen(true) : b.Tafel.Fernsteuerung_öffnen(true);
            if (runden == 12) b.Tafel.Lage_nachführen();
        };
        auf ? b.Tafel.Fernsteuerung_öffnen(true) : b.Tafel.Fernsteuerung_schließen(true);
        EXPECT_EQ(runden, 27);
        EXPECT_EQ(b.Tafel.sichtbar(), !auf);
        if (!auf) {
            EXPECT_EQ(b.Tafel.WinAmp_Frame.lage(), (Bereich{150, 405, 6243, 930}));
        }
    }
}

}  // namespace
}  // namespace tonkartei
