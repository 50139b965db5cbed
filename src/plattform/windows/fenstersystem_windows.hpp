// The windows of other processes.
#pragma once

#include <chrono>
#include <optional>
#include <unordered_set>

#include "plattform/fenstersystem.hpp"

namespace tonkartei {

// Window order is the system's, topmost first; names of classes are told apart without case, and answered as their first
// user in the session has spelt them. Whatever would wait for the other process is done only when it has just
// shown that it answers.
class Fenstersystem_Windows final : public Fenstersystem {
public:
    // `frist`: how long an answer may take. A window that let it pass once is waited for only briefly until it answers
    // again.
    explicit Fenstersystem_Windows(std::chrono::milliseconds frist = std::chrono::milliseconds(250)) : frist_(frist) {}

    std::optional<std::int32_t> SendMessageA(Hwnd fenster, std::uint32_t nachricht, std::int32_t w, std::int64_t l) override;
    Hwnd FindWindowA(const Text& klasse) override;
    Hwnd GetWindow(Hwnd fenster, std::uint32_t art) override;
    Text GetClassNameA(Hwnd fenster) override;
    Hwnd GetDesktopWindow() override;
    bool SetWindowPos(Hwnd fenster, Hwnd davor, int x, int y, int breite, int höhe, std::uint32_t flags) override;
    bool GetWindowRect(Hwnd fenster, Rechteck& ergebnis) override;
    Hwnd SetParent(Hwnd fenster, Hwnd neuer_Elter) override;
    std::int32_t SetWindowLongA(Hwnd fenster, int stelle, std::int32_t wert) override;

    // What a player tells of itself by messages, and what one of ours shows besides. Not a Windows call: for tests.
    struct Spielerzustand {
        bool sichtbar = false;
        int Lautstärke = 0;
        int Status = 0;  // as answered to message 104
        std::int32_t Position = 0, Länge = 0;
        Text Datei;
    };
    // None for a window that is no player.
    std::optional<Spielerzustand> Zustand(Hwnd fenster);

private:
    bool antwortet(Hwnd fenster);

    const std::chrono::milliseconds frist_;
    std::unordered_set<Hwnd> hängende_;  // owe an answer
};

}  // namespace tonkartei
