// What only this machine has: signals, command lines of any length, pipes that bear a song's name, a library that follows
// addresses, the order of windows.
#include <netinet/in.h>
#include <sys/socket.h>

#include "spieler/buehne.hpp"

namespace tonkartei::spieler {
namespace {

class Eigenes : public Bühne {};

TEST_F(Eigenes, WasSpäterErscheintStehtSpäter) {
    const Hwnd eins = Spieler_mit();
    starten({"/CLASS=TonkarteiWA1"});
    const Hwnd zwei = Fenster_von("TonkarteiWA1");
    EXPECT_EQ((std::vector{eins, zwei}), alle_Fenster());
    System.SendMessageA(zwei, WM_CLOSE, 0, 0);
    starten({"/CLASS=Tonkartei", "/NEW"});
    ASSERT_TRUE(warte([&] { return alle_Fenster().size() == 2; }));
    EXPECT_EQ(eins, System.FindWindowA("Tonkartei")) << "the first in window order";
    EXPECT_GT(alle_Fenster()[1], zwei) << "handles do not come twice";
}

TEST_F(Eigenes, FensterrufeMitFremdenZahlen) {
    const Hwnd f = Spieler_mit();
    const auto Platz_nach = [&](int x, int y, int breite, int höhe) {
        Rechteck r;
        System.SetWindowPos(f, HWND_NOTOPMOST, x, y, breite, höhe, SWP_SHOWWINDOW);
        EXPECT_TRUE(System.GetWindowRect(f, r));
        return std::array{r.links, r.oben, r.rechts, r.unten};
    };
    EXPECT_EQ((std::array{2147483647, 0, 2147483647, 0}), Platz_nach(2147483647, 0, 2147483647, -4));
    EXPECT_EQ(System.GetDesktopWindow(), System.SetParent(f, 4711));
    EXPECT_EQ(4711, System.SetParent(f, 0));
    EXPECT_EQ(0, System.SetWindowLongA(f, -16, 5));
    EXPECT_EQ(5, System.SetWindowLongA(f, -16, 6));
}

TEST_F(Eigenes, EinSignalBeendetGeordnet) {
    Prozess& prozess = starten({"/CLASS=../Tonkartei"});
    const Hwnd f = Fenster_von("../Tonkartei");
    System.SendMessageA(f, WM_USER, 77, 122);
    prozess.Signal(SIGTERM);
    EXPECT_EQ(0, Ende(prozess));
    starten({"/CLASS=../Tonkartei"});
    EXPECT_EQ(77, System.Zustand(Fenster_von("../Tonkartei"))->Lautstärke);
}

TEST_F(Eigenes, RöhrenWerdenÜbergangen) {
    ::mkfifo(Ordner.pfad("röhre.mp3").c_str(), 0600);
    const std::string a = Lied("a.mp3");
    const Hwnd f = Spieler_mit({Ordner.pfad("röhre.mp3"), a});
    EXPECT_EQ(a, Datei(f));
}

TEST_F(Eigenes, VieleDateienWerdenGanzÜbergeben) {
    const Hwnd f = Spieler_mit();
    std::vector<std::string> worte{"/CLASS=Tonkartei"};
    for (int i = 0; i < 3000; ++i) worte.push_back(Ordner.pfad("es-fehlt-" + std::to_string(i) + ".mp3"));
    worte.push_back(Lied("letztes.mp3"));
    EXPECT_EQ(0, Ende(starten(worte)));
    Befehl(f, 40045);
    EXPECT_TRUE(warte([&] { return Datei(f) == worte.back(); }));
}

// Files that lead on to a network address, in the forms that players follow gladly.
TEST_F(Eigenes, NurDateienWerdenGeöffnet) {
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

}  // namespace
}  // namespace tonkartei::spieler
