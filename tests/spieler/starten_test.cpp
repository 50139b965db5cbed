// Starting: classes, handing over, further windows, races, lists.
#include "spieler/argumente.hpp"
#include "spieler/buehne.hpp"

namespace tonkartei::spieler {
namespace {

class Starten : public Bühne {};

TEST_F(Starten, GibtAnDenSpielerDerKlasseWeiter) {
    const std::string a = Lied("a.mp3"), b = Lied("b mit Blank.mp3");
    const Hwnd f = Spieler_mit({a});
    EXPECT_EQ(a, Datei(f));
    Befehl(f, 40046);
    EXPECT_EQ(0, Ende(starten({"/CLASS=\"Tonkartei\"", b})));
    EXPECT_EQ(b, Datei(f)) << "replaced";
    EXPECT_EQ(1, Status(f)) << "and playing, paused before or not";
    EXPECT_EQ(0, Ende(starten({"/CLASS=Tonkartei"})));
    EXPECT_EQ(b, Datei(f)) << "without a file nothing changes";
    EXPECT_EQ(1U, alle_Fenster().size());
}

TEST_F(Starten, ZweiKlassenZugleich) {
    const std::string a = Lied("a.mp3"), b = Lied("b.mp3");
    const Hwnd eins = Spieler_mit({a});
    starten({"/CLASS=Tonkartei", "/NEW", "/CLASS=\"TonkarteiWA1\"", b});
    const Hwnd zwei = Fenster_von("TonkarteiWA1");
    ASSERT_NE(0, zwei);
    EXPECT_EQ(2U, alle_Fenster().size());
    Befehl(zwei, 40046);
    System.SendMessageA(zwei, WM_USER, 10, 122);
    EXPECT_EQ(1, Status(eins));
    EXPECT_EQ(255, System.Zustand(eins)->Lautstärke);
    System.SendMessageA(zwei, WM_CLOSE, 0, 0);
    EXPECT_EQ(std::vector{eins}, alle_Fenster());
}

TEST_F(Starten, VonVielenGleichzeitigenBleibtEiner) {
    std::vector<Prozess*> prozesse;
    for (int i = 0; i < 6; ++i) prozesse.push_back(&starten({"/CLASS=Tonkartei", Lied("l" + std::to_string(i) + ".mp3")}));
    const Hwnd f = Fenster_von("Tonkartei");
    ASSERT_NE(0, f);
    EXPECT_TRUE(
        warte([&] { return std::ranges::count_if(prozesse, [](Prozess* p) { return p->Status().has_value(); }) == 5; }));
    EXPECT_EQ(std::vector{f}, alle_Fenster());
    EXPECT_EQ(1, Status(f));
}

TEST_F(Starten, SpieltListenOhneDasUnspielbare) {
    const std::string lang = Lied(std::string(Testordner::krummer_Name) + ".mp3");
    Ordner.datei("kein Lied.mp3", std::string(3000, 'x'));
    Ordner.ordner("ordner.mp3");
    const Hwnd f = Spieler_mit({Ordner.datei("l.M3U",
                                             "\xEF\xBB\xBF#EXTM3U\r\n\r\n \t\nfehlt.mp3\nkein Lied.mp3\nordner.mp3\n"
                                             "NUL.mp3\r\nZ:fehlt.mp3\n" +
                                                 lang + "\nfehlt")});
    ASSERT_TRUE(warte([&] { return Datei(f) == lang && Position(f) > 0; }));
    springen(f, 29800);
    EXPECT_TRUE(warte([&] { return Status(f) == 0; }));
}

TEST_F(Starten, EinLiedNachDemAnderen) {
    const std::string a = Lied("a.mp3", 1.2), b = Lied("b.mp3", 0.8), c = Lied("c.mp3");
    const Hwnd f = Spieler_mit({a, b, c});
    ASSERT_TRUE(läuft(f));
    const auto anfang = std::chrono::steady_clock::now();
    ASSERT_TRUE(warte([&] { return Datei(f) == c && Position(f) > 0; }));
    const auto dauer = std::chrono::steady_clock::now() - anfang;
    EXPECT_TRUE(dauer > 1700ms && dauer < 3500ms) << "in real time";
}

TEST(SpielerArgumente, InJederReihenfolge) {
    const Text hier = Testordner().pfad();
    const struct {
        std::vector<Text> Worte;
        Text Klasse;
        bool neu;
        std::vector<Text> Dateien;
    } Fälle[] = {
        {{"/CLASS=\"A\"", "/NEW", "/CLASS=\"B C\"", "\"" + hier + "x y.mp3\""}, "B C", true, {hier + "x y.mp3"}},
        {{"a.mp3", hier + "b.m3u", "/CLASS=A"}, "A", false, {hier + "a.mp3", hier + "b.m3u"}},
        {{"/CLASS=", "/CLASS=\"\"", "", "\"\"", "NEWS"}, "Winamp v1.x", false, {hier + "NEWS"}},
        {{"/CLASS=" + Text(300, 'k')}, Text(255, 'k'), false, {}},
    };
    for (const auto& fall : Fälle) {
        const Argumente a = lies_Argumente(fall.Worte, hier);
        EXPECT_EQ(fall.Klasse, a.Klasse);
        EXPECT_EQ(fall.neu, a.neu);
        EXPECT_EQ(fall.Dateien, a.Dateien);
    }
}

}  // namespace
}  // namespace tonkartei::spieler
