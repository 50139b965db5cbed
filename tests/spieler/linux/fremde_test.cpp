// Strangers on the desktop: processes that connect and do not speak as a program does, sockets that do not answer as a
// window does. Neither side may be disturbed.
#include <fcntl.h>
#include <poll.h>
#include <sys/fsuid.h>
#include <sys/socket.h>
#include <sys/un.h>

#include "plattform/linux/schreibtisch.hpp"
#include "spieler/buehne.hpp"

namespace tonkartei::spieler {
namespace {

using protokoll::Anfrage;
using protokoll::Art;

template <class Werk>
double Millisekunden(Werk werk) {
    const auto anfang = std::chrono::steady_clock::now();
    werk();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - anfang).count();
}

class Fremde : public Bühne {
protected:
    Deskriptor verbinden(Hwnd fenster) {
        Deskriptor s(::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0));
        const Deskriptor ordner = schreibtisch::öffnen(false);
        const auto adresse = schreibtisch::Adresse(ordner, std::to_string(fenster));
        EXPECT_EQ(0, ::connect(s.fd(), reinterpret_cast<const sockaddr*>(&adresse), sizeof(adresse)));
        return s;
    }
    std::string Fensterordner() { return Ordner.pfad("lauf/tonkartei/fenster/"); }
    // A socket on the desktop that is not a player's.
    Deskriptor Attrappe(Hwnd fenster, int art = SOCK_SEQPACKET) {
        Deskriptor s(::socket(AF_UNIX, art | SOCK_CLOEXEC, 0));
        const Deskriptor ordner = schreibtisch::öffnen(true);
        const auto adresse = schreibtisch::Adresse(ordner, std::to_string(fenster));
        EXPECT_EQ(0, ::bind(s.fd(), reinterpret_cast<const sockaddr*>(&adresse), sizeof(adresse)));
        EXPECT_EQ(0, ::listen(s.fd(), 8));
        return s;
    }
    static void senden(const Deskriptor& s, std::string_view bytes) {
        (void)!::send(s.fd(), bytes.data(), bytes.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
    }
    // True when the other end closes within some seconds.
    static bool beendet(const Deskriptor& s) {
        pollfd p{s.fd(), POLLIN, 0};
        char puffer[8192];
        while (::poll(&p, 1, 4000) > 0)
            if (::recv(s.fd(), puffer, sizeof(puffer), MSG_DONTWAIT) <= 0) return true;
        return false;
    }
};

TEST_F(Fremde, UnsinnStörtDenSpielerNicht) {
    const Hwnd f = Spieler_mit({Lied("a.mp3")});
    ASSERT_TRUE(läuft(f));
    Anfrage gruß, fremd, unbekannt, nachricht;
    fremd.Kennung = 7;
    unbekannt.Art = static_cast<Art>(99);
    nachricht.Art = Art::Nachricht;
    const std::string gegrüßt = protokoll::gepackt(gruß);
    const std::vector<std::vector<std::string>> Reden{
        {"x"},
        {std::string(sizeof(Anfrage), 'x')},
        {std::string(200'000, 'x')},
        {protokoll::gepackt(fremd)},
        {protokoll::gepackt(nachricht)},  // without having greeted
        {gegrüßt, gegrüßt.substr(0, 20)},
        {gegrüßt, protokoll::gepackt(unbekannt)},
        {gegrüßt, std::string(100'000, '\0')},
    };
    for (std::size_t i = 0; i < Reden.size(); ++i) {
        const Deskriptor s = verbinden(f);
        for (const auto& paket : Reden[i]) senden(s, paket);
        EXPECT_TRUE(beendet(s)) << "talk " << i;
        EXPECT_EQ(1, Status(f)) << "talk " << i;
    }
}

TEST_F(Fremde, StummeUndVieleStörenDenSpielerNicht) {
    const Hwnd f = Spieler_mit({Lied("a.mp3")});
    std::vector<Deskriptor> stumme;
    for (int i = 0; i < 150; ++i) {
        stumme.push_back(verbinden(f));
        ASSERT_EQ(1, i % 10 == 0 ? Status(f) : 1) << i;
    }
    EXPECT_TRUE(beendet(stumme.back())) << "who does not greet is not kept";
}

TEST_F(Fremde, WasKeinFensterIstStörtDenBlickNicht) {
    const Hwnd f = Spieler_mit();
    const std::string ordner = Fensterordner();
    std::filesystem::create_directory(ordner + "9001");
    std::ofstream(ordner + "9002") << "x";
    std::filesystem::create_symlink(ordner + std::to_string(f), ordner + "9003");
    { const Deskriptor tot = Attrappe(9004); }
    const Deskriptor strom = Attrappe(9005, SOCK_STREAM);
    const Deskriptor stumm = Attrappe(9006);

    EXPECT_GT(2000, Millisekunden([&] { EXPECT_EQ(std::vector{f}, alle_Fenster()); }));
    EXPECT_FALSE(std::filesystem::exists(ordner + "9004")) << "dead, swept away";
    for (const auto* name : {"9001", "9002", "9003", "9005", "9006"})
        EXPECT_TRUE(std::filesystem::exists(std::filesystem::symlink_status(ordner + name)))
            << name << ": not ours to delete";
    EXPECT_GT(100, Millisekunden([&] { EXPECT_EQ(std::vector{f}, alle_Fenster()); }))
        << "who was mute is not waited for again";
    EXPECT_EQ(0, System.SendMessageA(9006, WM_USER, 0, 104));
    EXPECT_EQ(0, Status(f));
}

TEST_F(Fremde, HängenderSpielerKostetNurDieFrist) {
    Prozess& prozess = starten({"/CLASS=Tonkartei", Lied("a.mp3")});
    const Hwnd f = Fenster_von("Tonkartei");
    ASSERT_EQ(1, Status(f));
    prozess.Signal(SIGSTOP);
    EXPECT_GT(1000, Millisekunden([&] { EXPECT_EQ(std::nullopt, Status(f)) << "not stopped"; }));
    EXPECT_GT(150, Millisekunden([&] { EXPECT_EQ(std::nullopt, Status(f)); })) << "known to hang";
    EXPECT_EQ(f, System.FindWindowA("Tonkartei")) << "a window that hangs is still a window";
    Fenstersystem_echt neues;
    EXPECT_EQ(0, neues.FindWindowA("Tonkartei")) << "it has not said yet what it is";
    prozess.Signal(SIGCONT);
    EXPECT_TRUE(warte([&] { return Status(f) == 1; }));
    for (int i = 0; i < 50; ++i) ASSERT_EQ(1, Status(f)) << "no answer is taken for that of another question";
    EXPECT_TRUE(warte([&] { return neues.FindWindowA("Tonkartei") == f; }));
    // Killed while it hangs it is gone at the next look, and the answer is that of a closed window.
    prozess.Signal(SIGSTOP);
    EXPECT_EQ(std::nullopt, Status(f));
    prozess.Signal(SIGKILL);
    EXPECT_EQ(-2, Ende(prozess));
    EXPECT_EQ(0, Status(f));
    EXPECT_EQ(0, System.FindWindowA("Tonkartei"));
    EXPECT_FALSE(std::filesystem::exists(Fensterordner() + std::to_string(f))) << "swept away";
    EXPECT_NE(0, Spieler_mit());
}

TEST_F(Fremde, OrdnerGehörtUnsAllein) {
    const Hwnd f = Spieler_mit();
    ::chmod(Fensterordner().c_str(), 0755);
    EXPECT_EQ(f, System.FindWindowA("Tonkartei"));
    EXPECT_EQ(std::filesystem::status(Fensterordner()).permissions(), std::filesystem::perms::owner_all) << "repaired";
    if (::chown(Fensterordner().c_str(), 65534, 65534) != 0) GTEST_SKIP() << "needs another user";
    EXPECT_EQ(0, System.FindWindowA("Tonkartei"));
    EXPECT_EQ(1, Ende(starten({"/CLASS=Tonkartei"})));
}

// Somebody else at the other end, whichever end that is. The folder lets nobody in, so he keeps our rights on files here.
TEST_F(Fremde, NurDerselbeBenutzer) {
    const Hwnd f = Spieler_mit();
    if (::seteuid(65534) != 0) GTEST_SKIP() << "needs another user";
    ::setfsuid(0);
    const Deskriptor s(::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0));
    Deskriptor sein_Fenster(::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0));
    const Deskriptor ordner(::open(Fensterordner().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    const auto adresse = schreibtisch::Adresse(ordner, std::to_string(f)), seine = schreibtisch::Adresse(ordner, "9001");
    EXPECT_EQ(0, ::connect(s.fd(), reinterpret_cast<const sockaddr*>(&adresse), sizeof(adresse)));
    EXPECT_EQ(0, ::bind(sein_Fenster.fd(), reinterpret_cast<const sockaddr*>(&seine), sizeof(seine)));
    EXPECT_EQ(0, ::listen(sein_Fenster.fd(), 8));
    ASSERT_EQ(0, ::seteuid(0));
    Anfrage schluss;
    schluss.Art = Art::Nachricht;
    schluss.Nachricht = WM_CLOSE;
    senden(s, protokoll::gepackt(Anfrage{}));
    senden(s, protokoll::gepackt(schluss));
    EXPECT_TRUE(beendet(s));
    EXPECT_TRUE(System.Zustand(f).has_value()) << "his message counts for nothing";
    EXPECT_EQ(std::vector{f}, alle_Fenster());
    pollfd p{sein_Fenster.fd(), POLLIN, 0};
    char byte = 0;
    const Deskriptor unser(::poll(&p, 1, 0) > 0 ? ::accept(sein_Fenster.fd(), nullptr, nullptr) : -1);
    EXPECT_LE(::recv(unser.fd(), &byte, 1, MSG_DONTWAIT), 0) << "nothing is said to him";
}

}  // namespace
}  // namespace tonkartei::spieler
