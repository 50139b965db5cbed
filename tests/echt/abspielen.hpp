// The whole program in real time with real players, which play into nothing. What takes time takes it at once: the scenes
// run beside each other, each with a program and players of its own.
#pragma once

#include <filesystem>
#include <thread>

#include "programm/buehne.hpp"
#include "ton.hpp"

#include "spielerwelt.hpp"

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
        std::filesystem::create_directory(ordner.weg("lauf"));
        std::filesystem::permissions(ordner.weg("lauf"), std::filesystem::perms::owner_all);
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
    // The player's process dies without a word.
    void töten(const std::string& klasse = "Tonkartei") { EXPECT_EQ(Spieler_töten(ordner, klasse), 1); }
};

// Beside each other where each can have a desktop of its own.
template <class... Szenen>
void zugleich() {
    std::vector<std::thread> alle;
    const auto beginnen = [&](auto szene) {
        alle.emplace_back(szene);
        if (!eigener_Schreibtisch) alle.back().join();
    };
    (beginnen([] { Szenen().TestBody(); }), ...);
    for (auto& thread : alle)
        if (thread.joinable()) thread.join();
}

}  // namespace tonkartei
