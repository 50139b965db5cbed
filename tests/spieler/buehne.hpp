// A desktop of its own for real player processes: private folders, short songs made on the spot, and no process left behind.
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <memory>
#include <thread>

#include "echt.hpp"
#include "ton.hpp"

#include "prozess.hpp"

namespace tonkartei::spieler {

using namespace std::chrono_literals;

class Bühne : public testing::Test {
protected:
    static constexpr std::string_view Eigene = "Tonkartei";

    void SetUp() override { Umgebung_bereiten(Ordner); }

    Prozess& starten(std::vector<std::string> worte) {
        worte.insert(worte.begin(), TONKARTEI_SPIELER);
        return *prozesse_.emplace_back(std::make_unique<Prozess>(worte));
    }

    // Exit status within some seconds; -1 when it still runs, -2 when a signal ended it.
    int Ende(Prozess& prozess) {
        warte([&] { return prozess.Status().has_value(); });
        return prozess.Status().value_or(-1);
    }

    bool warte(const std::function<bool()>& bedingung, std::chrono::milliseconds frist = 8s) {
        const auto bis = std::chrono::steady_clock::now() + frist;
        while (!bedingung()) {
            if (std::chrono::steady_clock::now() > bis) return false;
            std::this_thread::sleep_for(5ms);
        }
        return true;
    }

    // The window of a class once it is there; 0 when it does not come.
    Hwnd Fenster_von(const Text& klasse) {
        Hwnd fenster = 0;
        warte([&] { return (fenster = System.FindWindowA(klasse)) != 0; });
        return fenster;
    }
    // A player of the own class with these files, playing or stopped.
    Hwnd Spieler_mit(std::vector<std::string> dateien = {}) {
        dateien.insert(dateien.begin(), "/CLASS=\"Tonkartei\"");
        starten(dateien);
        return Fenster_von(Text(Eigene));
    }
    std::vector<Hwnd> alle_Fenster() {
        std::vector<Hwnd> ergebnis;
        for (Hwnd f = System.GetWindow(System.GetDesktopWindow(), GW_CHILD); f != 0; f = System.GetWindow(f, GW_HWNDNEXT))
            if (System.GetClassNameA(f).starts_with(Eigene)) ergebnis.push_back(f);
        return ergebnis;
    }

    std::optional<std::int32_t> Status(Hwnd f) { return System.SendMessageA(f, WM_USER, 0, 104); }
    std::int32_t Position(Hwnd f) { return System.SendMessageA(f, WM_USER, 0, 105).value_or(-9); }
    std::int32_t Länge(Hwnd f) { return System.SendMessageA(f, WM_USER, 1, 105).value_or(-9); }
    void springen(Hwnd f, std::int32_t ms) { System.SendMessageA(f, WM_USER, ms, 106); }
    void Befehl(Hwnd f, std::int32_t code) { System.SendMessageA(f, WM_COMMAND, code, 0); }
    Text Datei(Hwnd f) { return System.Zustand(f).value_or(Fenstersystem_echt::Spielerzustand{}).Datei; }
    bool läuft(Hwnd f) {
        return warte([&] { return Position(f) > 0; });
    }

    std::string Lied(std::string_view name, double sekunden = 30) { return Ordner.datei(name, Mp3(sekunden)); }

    Testordner Ordner;
    Fenstersystem_echt System;

private:
    std::vector<std::unique_ptr<Prozess>> prozesse_;
};

}  // namespace tonkartei::spieler
