// Every message that the program sends, to a real player over a real socket.
#include "spieler/buehne.hpp"

namespace tonkartei::spieler {
namespace {

class Nachrichten : public Bühne {};

TEST_F(Nachrichten, WiedergabePauseStopp) {
    const Hwnd f = Spieler_mit({Lied("a.mp3")});
    EXPECT_EQ(1, Status(f)) << "taken is playing, sound or not";
    ASSERT_TRUE(läuft(f));
    EXPECT_EQ(30, Länge(f));
    Befehl(f, 40046);
    EXPECT_EQ(3, Status(f));
    const auto stand = Position(f);
    std::this_thread::sleep_for(200ms);
    EXPECT_NEAR(stand, Position(f), 30);
    Befehl(f, 40045);
    EXPECT_EQ(1, Status(f)) << "play resumes a pause";
    EXPECT_GE(Position(f), stand);
    springen(f, 20000);
    Befehl(f, 40045);
    EXPECT_LT(Position(f), 2000) << "play on a playing song begins anew";
    Befehl(f, 40047);
    Befehl(f, 40046);
    springen(f, 5000);
    EXPECT_EQ(0, Status(f)) << "pause and jump do nothing while stopped";
    EXPECT_EQ(-1, Position(f));
    Befehl(f, 40045);
    EXPECT_TRUE(läuft(f)) << "play starts the current song again";
}

TEST_F(Nachrichten, Springen) {
    const Hwnd f = Spieler_mit({Lied("a.mp3")});
    springen(f, 12000);
    EXPECT_GE(Position(f), 12000) << "asked before the song is open: the target";
    ASSERT_TRUE(warte([&] { return Position(f) > 12000; }));
    EXPECT_LT(Position(f), 13500);

    for (const auto& [code, von, nach] :
         {std::array{40148, 12000, 17000}, std::array{40144, 12000, 7000}, std::array{40144, 3000, 0}}) {
        Befehl(f, 40046);
        springen(f, von);
        Befehl(f, code);
        EXPECT_EQ(nach, Position(f)) << "under way: the target";
        std::this_thread::sleep_for(150ms);
        // As far as the sound has got: a machine under load is behind by a few buffers, never by a step.
        EXPECT_NEAR(nach, Position(f), 500);
        Befehl(f, 40045);
    }
    for (int i = 0; i < 3; ++i) Befehl(f, 40148);
    EXPECT_GE(Position(f), 15000) << "steps add up while they are under way";
    springen(f, -7);
    EXPECT_LT(Position(f), 1000);
    springen(f, 2'000'000'000);
    EXPECT_TRUE(warte([&] { return Status(f) == 0; })) << "beyond the end the song ends";
    EXPECT_EQ(-1, Länge(f));
}

TEST_F(Nachrichten, LautstärkeBleibtJeKlasse) {
    const Hwnd a = Spieler_mit();
    EXPECT_EQ(255, System.Zustand(a)->Lautstärke);
    for (const auto& [gesendet, gilt] : {std::pair{300, 255}, {-5, 0}, {191, 191}}) {
        System.SendMessageA(a, WM_USER, gesendet, 122);
        EXPECT_EQ(gilt, System.Zustand(a)->Lautstärke);
    }
    System.SendMessageA(a, WM_CLOSE, 0, 0);
    EXPECT_EQ(0, System.FindWindowA("Tonkartei")) << "gone at once";
    EXPECT_EQ(191, System.Zustand(Spieler_mit())->Lautstärke);
}

TEST_F(Nachrichten, FensterrufeBleibenBeimFenster) {
    const Hwnd f = Spieler_mit();
    EXPECT_TRUE(System.SetWindowPos(f, HWND_NOTOPMOST, 9, 9, 9, 9, SWP_HIDEWINDOW | SWP_NOMOVE | SWP_NOSIZE));
    EXPECT_FALSE(System.Zustand(f)->sichtbar);
    EXPECT_EQ(f, System.FindWindowA("Tonkartei")) << "hidden is not gone";
    System.SetWindowPos(f, HWND_NOTOPMOST, 10, 20, 300, 200, SWP_SHOWWINDOW);
    Rechteck r;
    EXPECT_TRUE(System.GetWindowRect(f, r));
    EXPECT_EQ((std::array{10, 20, 310, 220}), (std::array{r.links, r.oben, r.rechts, r.unten}));
    EXPECT_TRUE(System.Zustand(f)->sichtbar);
}

}  // namespace
}  // namespace tonkartei::spieler
