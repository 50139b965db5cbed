// The windows of other processes on Linux, by the Windows calls.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <vector>

#include "plattform/fenstersystem.hpp"
#include "plattform/linux/fensterleitungen.hpp"

namespace tonkartei {

class Fenstersystem_Linux final : public Fenstersystem {
public:
    // `frist`: how long an answer may take (fensterleitungen.hpp).
    explicit Fenstersystem_Linux(std::chrono::milliseconds frist = std::chrono::milliseconds(250)) : leitungen_(frist) {}

    std::optional<std::int32_t> SendMessageA(Hwnd fenster, std::uint32_t nachricht, std::int32_t w, std::int64_t l) override;
    Hwnd FindWindowA(const Text& klasse) override;
    Hwnd GetWindow(Hwnd fenster, std::uint32_t art) override;
    Text GetClassNameA(Hwnd fenster) override;
    Hwnd GetDesktopWindow() override;
    // Position, size and visibility are kept by the window's process; there is no picture that they would change.
    bool SetWindowPos(Hwnd fenster, Hwnd davor, int x, int y, int breite, int höhe, std::uint32_t flags) override;
    bool GetWindowRect(Hwnd fenster, Rechteck& ergebnis) override;
    // Answers the previous parent, the desktop at first. The window stays a child of the desktop all the same.
    Hwnd SetParent(Hwnd fenster, Hwnd neuer_Elter) override;
    // Answers the previous value.
    std::int32_t SetWindowLongA(Hwnd fenster, int stelle, std::int32_t wert) override;

    // What a player shows of itself. Not a Windows call: for status lines and tests.
    struct Spielerzustand {
        bool sichtbar = false;
        int Lautstärke = 0;  // 0 to 255
        int Status = 0;      // as answered to message 104
        std::int32_t Position = 0, Länge = 0;
        Text Datei;
    };
    std::optional<Spielerzustand> Zustand(Hwnd fenster);

    // Gives files to a player, which plays them at once. False when it did not take them.
    bool Dateien_übergeben(Hwnd fenster, const std::vector<Text>& dateien);

private:
    Fensterleitungen leitungen_;
};

}  // namespace tonkartei
