// The remote control: what its controls send, what the tick shows, how the panel moves.
#include <limits>

#include "oberflaeche/fenster.hpp"
#include "oberflaeche/hand.hpp"
#include "wiedergabe/buehne.hpp"
#include "wiedergabe/fernsteuerung.hpp"

namespace tonkartei {
namespace {

constexpr Long kleinste = std::numeric_limits<Long>::min(), größte = std::numeric_limits<Long>::max();
constexpr Bereich offen{150, 405, 6243, 930};

struct Tafelbühne : Bühne {
    tonkartei::Fenster Haupt{ansicht, "Tonkartei", "Tonkartei"};
    Knopf Ecke{Haupt, "Ecke"};
    Fernsteuerung Tafel{Haupt, einstellungen, Spiel.Spieler, rechner, Ecke};
    std::vector<Element*> Griffe{&Tafel.WinAmp_vor, &Tafel.WinAmp_zurück, &Tafel.WinAmp_Position};
    int Zufallslieder = 0;
    Spieler& spieler;

    explicit Tafelbühne(int status = 1) : spieler(Spieler_läuft(status)) {
        Ecke.lage({150, 405, 1790, 420});
        Tafel.WinAmp_Show.lage({6183, 408, 210, 927});
        Tafel.WinAmp_Position.lage({90, 500, 5000, 225});
        Tafel.Zufallslied_gewünscht.verbinden([this] { ++Zufallslieder; });
        Spiel.Takt.Anzeige_Schritt.verbinden([this] { Tafel.anzeigen(); });
        Tafel.Fernsteuerung_öffnen(false);
        spieler.Position = 61500;
        spieler.Länge = 200;
    }
    Aufzeichnung Takt() {
        Spiel.Takt.Timer_Timer();
        return nehmen();
    }
    void klick(Element& element, int ms, int x) {
        Hand::drücken(element, x, 0);
        rechner.Uhr_vor(ms);
        Hand::loslassen(element, x, 0);
    }
};

TEST(Fernsteuerung, der_Takt_zeigt_was_der_Spieler_sagt) {
    const struct {
        int Status;
        bool vorwärts;
        Long Position, Länge;
        Text Zeit;
        int max, wert;
    } fälle[] = {
        {1, true, 61500, 200, "01:02", 200, 62},         {1, false, 61500, 200, "-02:18", 200, 62},
        {3, true, 61500, 200, "|| 01:02", 200, 62},      {0, true, 61500, 200, "STOP", 200, 62},
        {1, true, 3661000, 4000, "01:01", 4000, 3661},   {3, false, 10000, -1, "|| -00:11", 1, 0},
        {1, true, kleinste, größte, "31:24", größte, 0}, {1, false, kleinste, größte, "-45:31", größte, 0},
    };
    for (const auto& f : fälle) {
        Tafelbühne b(f.Status);
        b.einstellungen.WinAmp_Zeit_vorwärts = f.vorwärts;
        b.spieler.Position = f.Position;
        b.spieler.Länge = f.Länge;
        EXPECT_TRUE(b.Takt().empty()) << "the slider that the tick moves seeks nothing: " << f.Zeit;
        b.spieler.hängt = true;
        for (int i = 0; i < 2; ++i) {
            EXPECT_EQ(b.Tafel.WinAmp_Zeit.beschriftung(), f.Zeit);
            EXPECT_EQ(b.Tafel.WinAmp_Position.max(), f.max) << f.Zeit;
            EXPECT_EQ(b.Tafel.WinAmp_Position.wert(), f.wert) << f.Zeit;
            b.Takt();
        }
    }
}

TEST(Fernsteuerung, gehaltene_Griffe_wirken_im_Takt_und_nur_bei_offener_Tafel) {
    Tafelbühne b;
    b.Takt();
    for (Element* e : b.Griffe) Hand::drücken(*e, 0, 0);
    b.spieler.Position = 90000;
    EXPECT_EQ(b.Takt(), (Aufzeichnung{gesendet(273, 40144, 0), gesendet(273, 40148, 0)}));
    EXPECT_EQ(b.Tafel.WinAmp_Position.wert(), 62) << "the user holds it";
    EXPECT_EQ(b.Tafel.WinAmp_Zeit.beschriftung(), "01:30");
    b.spieler.Länge = 0;
    b.Tafel.Fernsteuerung_schließen(false);
    EXPECT_TRUE(b.Takt().empty());
    EXPECT_EQ(b.Tafel.WinAmp_Position.max(), 200);
    b.Tafel.Fernsteuerung_öffnen(false);
    b.Takt();
    EXPECT_EQ(b.Tafel.WinAmp_Position.max(), 1) << "without a song, held or not";
}

TEST(Fernsteuerung, kurz_ist_was_in_dieselbe_Sekunde_fällt) {
    Tafelbühne b;
    b.Tafel.WinAmp_Position.bereich(0, 199);
    // Each press begins so many milliseconds after a full second.
    const auto alle = [&](int ab, int ms) {
        for (Element* e : b.Griffe) {
            b.rechner.Uhr_vor(1000 - b.rechner.Uhr() % 1000 + ab);
            b.klick(*e, ms, 1234);
        }
        return b.nehmen();
    };
    EXPECT_EQ(alle(0, 900), (Aufzeichnung{gesendet(1024, 0, 106), gesendet(1024, 50000, 106)}));
    EXPECT_TRUE(alle(900, 200).empty()) << "across the change of the second";
    EXPECT_EQ(b.Zufallslieder, 1);
    b.Tafel.WinAmp_Position.bereich(0, größte);
    b.klick(b.Tafel.WinAmp_Position, 0, 5000);
    Hand::schieben(b.Tafel.WinAmp_Position, größte);
    EXPECT_EQ(b.nehmen(), Aufzeichnung(2, gesendet(1024, größte, 106))) << "no overflow";
    for (const Long status : {Status_spielt, Status_Pause}) {
        b.Spiel.Spieler.WinAmp_Status = status;
        for (Knopf* knopf : {&b.Tafel.WinAmp_Play, &b.Tafel.Winamp_Pause, &b.Tafel.WinAmp_Stop}) Hand::klicken(*knopf);
    }
    Aufzeichnung befehle;
    for (const Long code : {40046, 40047, 40045, 40046, 40047}) befehle.push_back(gesendet(273, code, 0));
    EXPECT_EQ(b.nehmen(), befehle) << "play only when nothing plays";
    b.Spiel.Spieler.WinAmp_da = false;
    EXPECT_TRUE(alle(0, 0).empty());
    EXPECT_EQ(b.Zufallslieder, 2) << "the random song needs no player";
}

TEST(Fernsteuerung, Bewegung_in_zwanzig_Schritten) {
    Tafelbühne b;
    std::vector<Bereich> lagen;
    b.ansicht.Runde = [&] { lagen.push_back(b.Tafel.WinAmp_Frame.lage()); };
    b.Tafel.Fernsteuerung_schließen(true);
    EXPECT_FALSE(b.Tafel.sichtbar());
    const std::vector<Bereich> hinein(lagen.rbegin(), lagen.rend());
    lagen.clear();
    b.Tafel.Fernsteuerung_öffnen(true);
    ASSERT_EQ(lagen.size(), 20U);
    EXPECT_EQ(lagen.front(), b.Tafel.WinAmp_Show.lage());
    EXPECT_EQ(lagen[10], (Bereich{3167, 406, 3226, 929})) << "6183 - 3016.5, 408 - 1.5, to the even one";
    EXPECT_EQ(b.Tafel.WinAmp_Frame.lage(), offen);
    EXPECT_EQ(hinein, lagen);
    // A movement that begins within another one has the last word.
    for (const bool auf : {true, false}) {
        const auto bewegen = [&](bool hinaus) {
            hinaus ? b.Tafel.Fernsteuerung_öffnen(true) : b.Tafel.Fernsteuerung_schließen(true);
        };
        b.ansicht.Runde = nullptr;
        bewegen(!auf);
        int runden = 0;
        b.ansicht.Runde = [&] {
            if (++runden == 7) bewegen(!auf);
        };
        bewegen(auf);
        EXPECT_EQ(runden, 27);
        EXPECT_EQ(b.Tafel.sichtbar(), !auf);
        b.Tafel.Lage_nachführen();
        EXPECT_EQ(b.Tafel.WinAmp_Frame.lage(), offen) << "at rest again";
    }
}

}  // namespace
}  // namespace tonkartei
