// The whole program in real time with real players, which play into nothing. What takes time takes it at once: the scenes
// run beside each other, each with a program and players of its own.
#pragma once

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

class Abspielen : public Bühne {
protected:
    std::string a;

    // A collection of songs that last so many seconds.
    void lege(int anzahl, double sekunden) {
        Sammlung s;
        s.Lieder.clear();
        for (int n = 1; n <= anzahl; ++n) s.Lieder.push_back({"A" + std::to_string(n), "T"});
        a = sammlung("a", s);
        for (int n = 1; n <= anzahl; ++n) ordner.datei("a/0000000" + std::to_string(n) + ".MP3", Mp3(sekunden));
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
    // A player as it shows itself; null when there is none.
    nlohmann::json spieler(const std::string& klasse = "Tonkartei") {
        for (const auto& s : b->spieler())
            if (s["klasse"] == klasse) return s;
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
    // The last class that a process was started with.
    static std::string Klasse_von(pid_t prozess) {
        std::ifstream strom("/proc/" + std::to_string(prozess) + "/cmdline");
        std::string klasse;
        for (std::string argument; std::getline(strom, argument, '\0');)
            if (argument.starts_with("/CLASS=")) klasse = argument.substr(7);
        std::erase(klasse, '"');
        return klasse;
    }
    // The player's process dies without a word.
    void töten(const std::string& klasse = "Tonkartei") {
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
                ::getsockopt(s, SOL_SOCKET, SO_PEERCRED, &wer, &länge) == 0 && Klasse_von(wer.pid) == klasse &&
                ::kill(wer.pid, SIGKILL) == 0)
                ++getötet;
            ::close(s);
        }
        EXPECT_EQ(getötet, 1);
    }
};

template <class... Szenen>
void zugleich() {
    std::vector<std::thread> alle;
    (alle.emplace_back([] { Szenen().TestBody(); }), ...);
    for (auto& thread : alle) thread.join();
}

}  // namespace tonkartei
