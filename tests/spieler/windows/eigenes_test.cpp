// What only this machine has: messages with memory behind them, windows within others, a title and a desktop to be seen on.
#include "plattform/windows/breit.hpp"
#include "plattform/windows/winapi.hpp"
#include "spieler/buehne.hpp"
#include "spieler/liste_m3u.hpp"
#include "spieler/windows/dateiuebergabe.hpp"

namespace tonkartei::spieler {
namespace {

class Eigenes : public Bühne {
protected:
    static HWND Fenster(Hwnd f) { return static_cast<HWND>(::LongToHandle(f)); }
    static bool Unsinn(Hwnd f, std::uintptr_t marke, std::string bytes) {
        COPYDATASTRUCT daten{marke, static_cast<DWORD>(bytes.size()), bytes.empty() ? nullptr : bytes.data()};
        DWORD_PTR antwort = 0;
        EXPECT_NE(0, ::SendMessageTimeoutA(Fenster(f), WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&daten), SMTO_BLOCK, 2000,
                                           &antwort));
        return antwort != 0;
    }
};

TEST_F(Eigenes, ÜbergabeNimmtNurWasEineIst) {
    const std::string a = Lied("a.mp3");
    const Hwnd f = Spieler_mit({a});
    EXPECT_FALSE(Unsinn(f, 0, a + '\0'));
    EXPECT_FALSE(Unsinn(f, Marke_Dateien, {}));
    EXPECT_EQ(a, Datei(f)) << "unchanged";
    const std::string b = Lied("Grüße 漢.mp3");
    EXPECT_TRUE(Unsinn(f, Marke_Dateien, "relativ.mp3" + std::string(1, '\0') + b + '\0' + a));
    EXPECT_EQ(b, Datei(f)) << "whole paths that are ended";
    EXPECT_TRUE(läuft(f));
}

TEST_F(Eigenes, GezeigtIstNichtsZuSehen) {
    const Hwnd f = Spieler_mit();
    System.SetWindowPos(f, 0, 0, 0, 500, 500, SWP_SHOWWINDOW);
    EXPECT_TRUE(::IsWindowVisible(Fenster(f)));
    EXPECT_NE(Fenster(f), ::WindowFromPoint({20, 20}));
    EXPECT_NE(Fenster(f), ::GetForegroundWindow());
}

// A desk that takes it into its own window, and dies.
TEST_F(Eigenes, MitSeinemElternfensterEndetEr) {
    Prozess& prozess = starten({"/CLASS=Tonkartei", Lied("a.mp3")});
    const Hwnd f = Fenster_von("Tonkartei");
    const HWND pult =
        ::CreateWindowExW(0, L"STATIC", L"", WS_OVERLAPPEDWINDOW, 0, 0, 99, 99, nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ(System.GetDesktopWindow(), System.SetParent(f, static_cast<Hwnd>(::HandleToLong(pult))));
    EXPECT_EQ(1, Status(f));
    ::DestroyWindow(pult);
    EXPECT_EQ(0, Ende(prozess));
}

TEST_F(Eigenes, EndeDerSitzungMerktDieLautstärke) {
    Prozess& prozess = starten({"/CLASS=Tonkartei"});
    const Hwnd f = Fenster_von("Tonkartei");
    System.SendMessageA(f, WM_USER, 77, 122);
    System.SendMessageA(f, WM_ENDSESSION, 1, 0);
    EXPECT_EQ(0, Ende(prozess));
    EXPECT_EQ(77, System.Zustand(Spieler_mit())->Lautstärke);
}

TEST_F(Eigenes, KlassenOhneGroßUndKlein) {
    const Hwnd f = Spieler_mit();
    EXPECT_EQ(0, Ende(starten({"/CLASS=TONKARTEI", Lied("a.mp3")})));
    EXPECT_EQ(1, Status(f)) << "handed over";
}

TEST(SpielerPfade, VonEinemOrdnerAus) {
    for (const auto& [pfad, ganz] : {std::pair<Text, Text>{"a.mp3", "D:\\m\\a.mp3"},
                                     {"\\x\\a.mp3", "D:\\x\\a.mp3"},
                                     {"E:/a.mp3", "E:/a.mp3"},
                                     {"\\\\s\\f\\a.mp3", "\\\\s\\f\\a.mp3"}})
        EXPECT_EQ(ganz, ganzer_Pfad(pfad, "D:\\m"));
}

}  // namespace
}  // namespace tonkartei::spieler
