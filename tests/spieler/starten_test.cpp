// Starting: classes, handing over, further windows, races, lists.
#include <netinet/in.h>
#include <sys/socket.h>

#include "spieler/argumente.hpp"
#include "spieler/buehne.hpp"

namespace tonkartei::spieler {
namespace {

class Starten : public Bühne {};

TEST_F(Starten, GibtAnDenSpielerDerKlasseWeiter) {
    const std::string a = Lied("a.wav"), b = Lied("b mit Blank.wav");
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
    const std::string a = Lied("a.wav"), b = Lied("b.wav");
    const Hwnd eins = Spieler_mit({a});
    starten({"/CLASS=Tonkartei", "/NEW", "/CLASS=\"TonkarteiWA1\"", b});
    const Hwnd zwei = Fenster_von("TonkarteiWA1");
    ASSERT_NE(0, zwei);
    EXPECT_EQ((std::vector{eins, zwei}), alle_Fenster()) << "order of appearance";
    Befehl(zwei, 40046);
    System.SendMessageA(zwei, WM_USER, 10, 122);
    EXPECT_EQ(1, Status(eins));
    EXPECT_EQ(255, System.Zustand(eins)->Lautstärke);
    System.SendMessageA(zwei, WM_CLOSE, 0, 0);
    // What appears later stands later, also when one before it has gone.
    starten({"/CLASS=Tonkartei", "/NEW"});
    ASSERT_TRUE(warte([&] { return alle_Fenster().size() == 2; }));
    EXPECT_EQ(eins, System.FindWindowA("Tonkartei")) << "the first in window order";
    EXPECT_GT(alle_Fenster()[1], zwei) << "handles do not come twice";
}

TEST_F(Starten, VonVielenGleichzeitigenBleibtEiner) {
    std::vector<pid_t> pids;
    for (int i = 0; i < 6; ++i) pids.push_back(starten({"/CLASS=Tonkartei", Lied("l" + std::to_string(i) + ".wav")}));
    const Hwnd f = Fenster_von("Tonkartei");
    ASSERT_NE(0, f);
    EXPECT_TRUE(warte([&] {
        std::erase_if(pids, [](pid_t pid) { return ::waitpid(pid, nullptr, WNOHANG) == pid; });
        return pids.size() == 1;
    }));
    EXPECT_EQ(std::vector{f}, alle_Fenster());
    EXPECT_EQ(1, Status(f));
}

TEST_F(Starten, SpieltListenOhneDasUnspielbare) {
    const std::string lang = Lied("l\xE4nger.wav");  // bytes of a name, whatever they mean
    Ordner.datei("kein Lied.mp3", std::string(3000, 'x'));
    Ordner.ordner("ordner.mp3");
    ::mkfifo(Ordner.pfad("röhre.mp3").c_str(), 0600);
    const Hwnd f = Spieler_mit({Ordner.datei(
        "l.M3U", "\xEF\xBB\xBF#EXTM3U\r\n\r\n \t\nfehlt.mp3\nkein Lied.mp3\nordner.mp3\nröhre.mp3\r\n" + lang + "\nfehlt")});
    ASSERT_TRUE(warte([&] { return Datei(f) == lang && Position(f) > 0; }));
    springen(f, 29800);
    EXPECT_TRUE(warte([&] { return Status(f) == 0; }));
}

// Files that lead on to a network address, in the forms that players follow gladly.
TEST_F(Starten, NurDateienWerdenGeöffnet) {
    const Deskriptor lauscher(::socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
    sockaddr_in adresse{};
    adresse.sin_family = AF_INET;
    adresse.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t größe = sizeof(adresse);
    ASSERT_EQ(0, ::bind(lauscher.fd(), reinterpret_cast<const sockaddr*>(&adresse), größe));
    ASSERT_EQ(0, ::listen(lauscher.fd(), 8));
    ASSERT_EQ(0, ::getsockname(lauscher.fd(), reinterpret_cast<sockaddr*>(&adresse), &größe));
    const std::string url = "http://127.0.0.1:" + std::to_string(ntohs(adresse.sin_port)) + "/x.mp3";
    const Hwnd f = Spieler_mit({
        Ordner.datei("1.mp3", "#EXTM3U\n#EXT-X-TARGETDURATION:9\n#EXTINF:9,\n" + url + "\n#EXT-X-ENDLIST\n"),
        Ordner.datei("2.mp3", "# mpv EDL v0\n" + url + "\n"),
        Ordner.datei("3.pls", "[playlist]\nFile1=" + url + "\n"),
        Ordner.datei("4.m3u", url + "\n"),
        Ordner.datei("5.mp3", "ffconcat version 1.0\nfile '" + url + "'\n"),
        url,
    });
    ASSERT_NE(0, f);
    EXPECT_TRUE(warte([&] { return Status(f) == 0; }));
    EXPECT_EQ(-1, ::accept(lauscher.fd(), nullptr, nullptr)) << "somebody called";
}

TEST_F(Starten, VieleDateienWerdenGanzÜbergeben) {
    const Hwnd f = Spieler_mit();
    std::vector<std::string> worte{"/CLASS=Tonkartei"};
    for (int i = 0; i < 3000; ++i) worte.push_back(Ordner.pfad("es-fehlt-" + std::to_string(i) + ".mp3"));
    worte.push_back(Lied("letztes.wav"));
    EXPECT_EQ(0, Ende(starten(worte)));
    Befehl(f, 40045);
    EXPECT_TRUE(warte([&] { return Datei(f) == worte.back(); }));
}

TEST(SpielerArgumente, InJederReihenfolge) {
    const struct {
        std::vector<Text> Worte;
        Text Klasse;
        bool neu;
        std::vector<Text> Dateien;
    } Fälle[] = {
        {{"/CLASS=\"A\"", "/NEW", "/CLASS=\"B C\"", "\"/m/x y.mp3\""}, "B C", true, {"/m/x y.mp3"}},
        {{"a.mp3", "/m/b.m3u", "/CLASS=A"}, "A", false, {"/hier/a.mp3", "/m/b.m3u"}},
        {{"/CLASS=", "/CLASS=\"\"", "", "\"\"", "/NEWS"}, "Winamp v1.x", false, {"/NEWS"}},
        {{"/CLASS=" + Text(300, 'k')}, Text(255, 'k'), false, {}},
    };
    for (const auto& fall : Fälle) {
        const Argumente a = lies_Argumente(fall.Worte, "/hier");
        EXPECT_EQ(fall.Klasse, a.Klasse);
        EXPECT_EQ(fall.neu, a.neu);
        EXPECT_EQ(fall.Dateien, a.Dateien);
    }
}

}  // namespace
}  // namespace tonkartei::spieler
