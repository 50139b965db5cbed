// The whole program in real time with the real player, which plays into nothing. What takes time takes it at once: the
// scenes run beside each other, each with a program and a player of its own.
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <csignal>
#include <cstring>
#include <thread>

#include "programm/buehne.hpp"
#include "ton.hpp"

namespace tonkartei {
namespace {

class Abspielen : public Bühne {
protected:
    std::string a;

    // A collection of songs that last so many seconds.
    void lege(int anzahl, double sekunden) {
        Sammlung s;
        s.Lieder.clear();
        for (int n = 1; n <= anzahl; ++n) s.Lieder.push_back({"A" + std::to_string(n), "T"});
        a = sammlung("a", s);
        for (int n = 1; n <= anzahl; ++n) ordner.datei("a/0000000" + std::to_string(n) + ".MP3", Wav(sekunden));
    }
    void starte(std::vector<std::string> setze) {
        ::mkdir(ordner.pfad("lauf").c_str(), 0700);
        for (const auto& eintrag : zuletzt({a})) setze.push_back(eintrag);
        setze.push_back("WinAmp beenden=2");
        starten({.setze = setze,
                 .maschine = "echt",
                 .umgebung = {"XDG_RUNTIME_DIR=" + ordner.pfad("lauf"), "XDG_STATE_HOME=" + ordner.pfad("zustand"),
                              "XDG_DATA_HOME=" + ordner.pfad("daten"), "TONKARTEI_TON=null"}});
    }

public:
    ~Abspielen() override {
        if (b && b->bereit() != "ende") hand("klick Tonkartei.MP_Beenden");
    }
    // The own player as it shows itself; null when there is none.
    nlohmann::json spieler() {
        for (const auto& s : b->spieler())
            if (s["klasse"] == "Tonkartei") return s;
        return nullptr;
    }
    // What is true within so many seconds.
    template <class Bedingung>
    bool bald(Bedingung bedingung, int sekunden = 8) {
        for (int i = 0; i < sekunden * 20; ++i) {
            if (bedingung()) return true;
            hand("warte 50");
        }
        return false;
    }
    bool spielt() {
        const auto s = spieler();
        return !s.is_null() && s["status"] == 1;
    }
    // How often the songs were heard, "1 0 2 ".
    std::string Anzahlen() {
        std::string text;
        for (const int nr : {1, 2, 3}) {
            wähle(nr);
            text += b->text("Tonkartei.Anzahl") + " ";
        }
        return text;
    }
    // The player's process dies without a word.
    void töten() {
        const std::string fenster = ordner.pfad("lauf/tonkartei/fenster/");
        int getötet = 0;
        for (const auto& eintrag : std::filesystem::directory_iterator(fenster)) {
            const int s = ::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0);
            sockaddr_un adresse{};
            adresse.sun_family = AF_UNIX;
            std::strncpy(adresse.sun_path, eintrag.path().c_str(), sizeof(adresse.sun_path) - 1);
            ucred wer{};
            socklen_t länge = sizeof(wer);
            if (::connect(s, reinterpret_cast<sockaddr*>(&adresse), sizeof(adresse)) == 0 &&
                ::getsockopt(s, SOL_SOCKET, SO_PEERCRED, &wer, &länge) == 0 && ::kill(wer.pid, SIGKILL) == 0)
                ++getötet;
            ::close(s);
        }
        EXPECT_EQ(getötet, 1);
    }
};

// Three songs one after the other, and players that die.
struct Autoplay : Abspielen {
    void TestBody() override {
        lege(3, 2.5);
        starte({"Random-Autoplay=False", "Anzahl-Zeit=1"});
        hand("klick Tonkartei.Autoplay");
        const auto gewählt = [&] { return b->zeige("Tonkartei.Liste")["gewählt"].get<int>(); };
        for (const int zeile : {0, 1, 2}) EXPECT_TRUE(bald([&] { return gewählt() == zeile && spielt(); })) << zeile;
        // A player that dies is none, not a stopped one: nothing follows, and after four ticks autoplay ends.
        töten();
        EXPECT_TRUE(bald([&] { return !b->zeige("Tonkartei.Autoplay")["wert"].get<bool>(); }));
        EXPECT_EQ(gewählt(), 2);
        EXPECT_TRUE(spieler().is_null());
        EXPECT_EQ(Anzahlen(), "1 1 1 ");
        // A start brings a new one up.
        hände({"wähle Tonkartei.Liste 0", "klick Tonkartei.Lied_starten"});
        EXPECT_TRUE(bald([&] { return spielt(); }));
    }
};

// A list of its own: the player goes through it, the program sees it play, and none of it counts.
struct Listendatei : Abspielen {
    void TestBody() override {
        lege(3, 2.5);
        // In a folder of any name.
        const std::string winamp = ordner.ordner("mein Spieler");
        std::filesystem::create_symlink(std::filesystem::canonical("/proc/self/exe").replace_filename("WinAmp.Exe"),
                                        winamp + "WinAmp.Exe");
        starte({"Random-Einstellung=1", "WinAmp=" + winamp});
        hände({"klick Tonkartei.Zufalls_Playlist", "eingabe 3", "antwort Nein"});
        for (const char* lied : {"00000001.MP3", "00000002.MP3", "00000003.MP3"})
            EXPECT_TRUE(bald([&] {
                const auto s = spieler();
                return !s.is_null() && s["datei"].get<std::string>().ends_with(lied);
            })) << lied;
        EXPECT_TRUE(bald([&] { return !spielt(); })) << "the list is over";
        EXPECT_EQ(Anzahlen(), "0 0 0 ");
    }
};

// What the panel says and does, as the player takes it.
struct Fernsteuerung : Abspielen {
    void TestBody() override {
        lege(1, 60);
        starte({"WinAmp Fernsteuerung animiert=False"});
        hände({"maus Tonkartei.WinAmp_Show", "wähle Tonkartei.Liste 0", "klick Tonkartei.Lied_starten"});
        const auto zeit = [&] { return b->text("Tonkartei.WinAmp_Zeit"); };
        const auto position = [&] {
            const auto s = spieler();
            return s.is_null() ? -1 : s["position"].get<int>();
        };
        EXPECT_TRUE(bald([&] { return zeit() > "00:00" && zeit() < "00:09"; })) << zeit();
        EXPECT_EQ(b->zeige("Tonkartei.WinAmp_Position")["max"], 60);
        hand("uhr +500");
        EXPECT_NE(b->fehler(), "") << "real time cannot be set";
        hand("klick Tonkartei.Winamp_Pause");
        EXPECT_TRUE(bald([&] { return zeit().starts_with("|| 00:"); })) << zeit();
        hand("klick Tonkartei.Winamp_Pause");
        EXPECT_TRUE(bald([&] { return zeit().starts_with("00:"); })) << zeit();
        hand("setze Tonkartei.WinAmp_Position 20");
        EXPECT_TRUE(bald([&] { return position() >= 20000 && zeit() >= "00:20"; })) << position();
        // Each tick winds by five seconds.
        hand("drücke Tonkartei.WinAmp_vor");
        EXPECT_TRUE(bald([&] { return position() >= 30000; })) << position();
        hände({"loslasse Tonkartei.WinAmp_vor", "drücke Tonkartei.WinAmp_zurück"});
        EXPECT_TRUE(bald([&] { return position() < 25000; })) << position();
        hände({"loslasse Tonkartei.WinAmp_zurück", "setze Tonkartei.WinAmp_Vol 50"});
        EXPECT_EQ(spieler()["lautstärke"], 127);
        hand("klick Tonkartei.WinAmp_Stop");
        EXPECT_TRUE(bald([&] { return zeit() == "STOP"; })) << zeit();
        hand("klick Tonkartei.WinAmp_Play");
        EXPECT_TRUE(bald([&] { return zeit() < "00:09"; })) << zeit();
    }
};

template <class... Szenen>
void zugleich() {
    std::vector<std::thread> alle;
    (alle.emplace_back([] { Szenen().TestBody(); }), ...);
    for (auto& thread : alle) thread.join();
}

TEST(Echt, alles_zugleich) { zugleich<Autoplay, Listendatei, Fernsteuerung>(); }

}  // namespace
}  // namespace tonkartei
