// A desktop of its own for real player processes: private folders, short songs made on the spot, and no process left behind.
#pragma once

#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <csignal>

#include <chrono>
#include <functional>
#include <thread>

#include "plattform/linux/fenstersystem_linux.hpp"
#include "testordner.hpp"
#include "ton.hpp"

extern char** environ;

namespace tonkartei::spieler {

using namespace std::chrono_literals;

class Bühne : public testing::Test {
protected:
    static constexpr std::string_view Eigene = "Tonkartei";

    void SetUp() override {
        ::mkdir(Ordner.pfad("lauf").c_str(), 0700);
        ::setenv("XDG_RUNTIME_DIR", Ordner.pfad("lauf").c_str(), 1);
        ::setenv("XDG_STATE_HOME", Ordner.pfad("zustand").c_str(), 1);
        ::setenv("TONKARTEI_TON", "null", 1);
    }
    void TearDown() override {
        for (const pid_t pid : prozesse_) {
            ::kill(pid, SIGKILL);
            ::waitpid(pid, nullptr, 0);
        }
    }

    pid_t starten(const std::vector<std::string>& worte) {
        std::vector<std::string> kopie{TONKARTEI_SPIELER};
        kopie.insert(kopie.end(), worte.begin(), worte.end());
        std::vector<char*> argv;
        for (auto& wort : kopie) argv.push_back(wort.data());
        argv.push_back(nullptr);
        pid_t pid = 0;
        EXPECT_EQ(0, ::posix_spawn(&pid, TONKARTEI_SPIELER, nullptr, nullptr, argv.data(), environ));
        prozesse_.push_back(pid);
        return pid;
    }

    // Exit status within some seconds; -1 when it still runs, -2 when a signal ended it.
    int Ende(pid_t pid) {
        int status = 0;
        if (!warte([&] { return ::waitpid(pid, &status, WNOHANG) == pid; })) return -1;
        std::erase(prozesse_, pid);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -2;
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
            ergebnis.push_back(f);
        return ergebnis;
    }

    std::optional<std::int32_t> Status(Hwnd f) { return System.SendMessageA(f, WM_USER, 0, 104); }
    std::int32_t Position(Hwnd f) { return System.SendMessageA(f, WM_USER, 0, 105).value_or(-9); }
    std::int32_t Länge(Hwnd f) { return System.SendMessageA(f, WM_USER, 1, 105).value_or(-9); }
    void springen(Hwnd f, std::int32_t ms) { System.SendMessageA(f, WM_USER, ms, 106); }
    void Befehl(Hwnd f, std::int32_t code) { System.SendMessageA(f, WM_COMMAND, code, 0); }
    Text Datei(Hwnd f) { return System.Zustand(f).value_or(Fenstersystem_Linux::Spielerzustand{}).Datei; }
    bool läuft(Hwnd f) {
        return warte([&] { return Position(f) > 0; });
    }

    std::string Lied(std::string_view name, double sekunden = 30) { return Ordner.datei(name, Wav(sekunden)); }
    std::string Fensterordner() { return Ordner.pfad("lauf/tonkartei/fenster/"); }

    Testordner Ordner;
    Fenstersystem_Linux System;

private:
    std::vector<pid_t> prozesse_;
};

}  // namespace tonkartei::spieler
