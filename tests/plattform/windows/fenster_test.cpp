// Windows of other processes, and the starting of them.
#include <gtest/gtest.h>

#include <chrono>
#include <functional>

#include "echt.hpp"
#include "plattform/hilfen.hpp"
#include "testordner.hpp"

namespace tonkartei {
namespace {

using namespace std::chrono_literals;

class FensterTest : public testing::Test {
protected:
    Testordner ordner;
    Dateisystem_Windows dateien;
    Papierkorb_Windows papierkorb{dateien};
    Shell_Windows shell{dateien, papierkorb};
    Fenstersystem_Windows fenster;
    const Text programm = Ordner_von(Programmpfad()) + "fremdes_fenster.exe";

    static bool bald(const std::function<bool()>& bedingung) {
        const auto bis = std::chrono::steady_clock::now() + 10s;
        while (!bedingung() && std::chrono::steady_clock::now() < bis) Rechner_Windows().Sleep(20);
        return bedingung();
    }
    Hwnd öffnen(const Text& klasse) {
        shell.starten(programm + " \"" + klasse + "\"", 4);
        bald([&] { return fenster.FindWindowA(klasse) != 0; });
        return fenster.FindWindowA(klasse);
    }
    bool schließen(Hwnd griff) {
        fenster.SendMessageA(griff, WM_CLOSE, 0, 0);
        return bald([&] { return fenster.GetClassNameA(griff).empty(); });
    }
    static auto Dauer(const std::function<void()>& arbeit) {
        const auto anfang = std::chrono::steady_clock::now();
        arbeit();
        return std::chrono::steady_clock::now() - anfang;
    }
};

TEST_F(FensterTest, ZweiProzesse) {
    const Hwnd eins = öffnen("Tonkartei-Test Für 漢"), zwei = öffnen("Tonkartei-Test 2");
    ASSERT_NE(eins, 0);
    ASSERT_NE(zwei, 0);
    EXPECT_NE(eins, zwei);
    EXPECT_EQ(fenster.FindWindowA("Tonkartei-Test fehlt"), 0);
    EXPECT_EQ(fenster.GetClassNameA(eins), "Tonkartei-Test Für 漢");
    for (const std::int32_t wert : {41, -2, -2147483647 - 1})
        EXPECT_EQ(fenster.SendMessageA(eins, WM_USER, wert, 1), wert + 1);
    int gesehen = 0;
    for (Hwnd f = fenster.GetWindow(fenster.GetDesktopWindow(), GW_CHILD); f != 0; f = fenster.GetWindow(f, GW_HWNDNEXT))
        gesehen += f == eins || f == zwei ? 1 : 0;
    EXPECT_EQ(gesehen, 2);
    EXPECT_TRUE(fenster.SetWindowPos(eins, HWND_NOTOPMOST, 10, 20, 320, 240, 0));
    Rechteck platz;
    EXPECT_TRUE(fenster.GetWindowRect(eins, platz));
    EXPECT_EQ((std::vector<int>{platz.links, platz.oben, platz.rechts, platz.unten}), (std::vector<int>{10, 20, 330, 260}));
    constexpr int Stil = -16;
    const std::int32_t vorher = fenster.SetWindowLongA(eins, Stil, 0x40000000);
    EXPECT_EQ(fenster.SetWindowLongA(eins, Stil, vorher) & 0x40000000, 0x40000000);
    EXPECT_TRUE(schließen(eins));
    EXPECT_EQ(fenster.SendMessageA(eins, WM_USER, 1, 1), 0) << "a window that is gone answers 0";
    EXPECT_FALSE(fenster.SetWindowPos(eins, 0, 0, 0, 0, 0, SWP_NOSIZE));
    EXPECT_TRUE(schließen(zwei));
}

TEST_F(FensterTest, HängtNichtLänger) {
    const Hwnd fremdes = öffnen("Tonkartei-Test hängt");
    ASSERT_NE(fremdes, 0);
    const auto zuerst = Dauer([&] { EXPECT_EQ(fenster.SendMessageA(fremdes, WM_USER, 1500, 2), std::nullopt); });
    const auto danach = Dauer([&] {
        for (int i = 0; i < 5; ++i) EXPECT_EQ(fenster.SendMessageA(fremdes, WM_USER, 1, 1), std::nullopt);
        EXPECT_FALSE(fenster.SetWindowPos(fremdes, 0, 0, 0, 9, 9, 0));
        EXPECT_EQ(fenster.SetParent(fremdes, 0), 0);
        EXPECT_EQ(fenster.FindWindowA("Tonkartei-Test hängt"), fremdes);
    });
    EXPECT_LT(zuerst, 450ms);
    EXPECT_LT(danach, 450ms) << "who let the time pass once is waited for briefly";
    EXPECT_TRUE(bald([&] { return fenster.SendMessageA(fremdes, WM_USER, 1, 1) == 2; })) << "and is back when it answers";
    EXPECT_TRUE(schließen(fremdes));
}

TEST_F(FensterTest, ProzessUndSeineArgumente) {
    const Text kopie = ordner.ordner("mit blank ä") + "Für 漢.exe";
    dateien.kopieren(programm, kopie);
    const Text ergebnis = ordner.pfad("ergebnis ä.txt");
    const Text klasse = "Tonkartei-Test Argumente";
    for (const Text& befehl : {kopie, in_Anführungszeichen(kopie), Text("FÜR 漢")}) {
        dateien.aktuellen_Ordner_setzen(Ordner_von(kopie));
        const Text ganz = (befehl == "FÜR 漢" ? "für 漢.EXE" : befehl);
        shell.starten(ganz + " \"" + klasse + "\" \"" + ergebnis + "\" a \"b c\" /CLASS=\"x\" ü漢", 2);
        ASSERT_TRUE(bald([&] { return fenster.FindWindowA(klasse) != 0; })) << ganz;
        EXPECT_EQ(ordner.inhalt("ergebnis ä.txt"), "a|b c|/CLASS=x|ü漢|");
        EXPECT_TRUE(schließen(fenster.FindWindowA(klasse)));
        dateien.löschen(ergebnis);
    }
    EXPECT_EQ(Fehler_von([&] { shell.starten(ordner.pfad("fehlt.exe /NEW"), 2); }), 53);
    EXPECT_EQ(Fehler_von([&] { shell.starten("", 2); }), 53);
    EXPECT_NE(Fehler_von([&] { shell.starten(ordner.datei("müll.exe", "kein Programm"), 2); }), 0);
}

}  // namespace
}  // namespace tonkartei
