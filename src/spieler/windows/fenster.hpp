// The player's window: one of its class among the system's, for messages alone. It can be shown, moved and hidden as any
// other; there is nothing of it to be seen.
#pragma once

#include <cstdint>
#include <optional>

#include "spieler/fensterprozedur.hpp"

struct HWND__;

namespace tonkartei::spieler {

class Fenster {
public:
    // Throws std::runtime_error when it cannot be.
    Fenster(const Text& klasse, Fensterprozedur& prozedur);
    ~Fenster() { verschwinden(); }
    Fenster(const Fenster&) = delete;
    Fenster& operator=(const Fenster&) = delete;

    bool offen() const noexcept { return fenster_ != nullptr; }
    // Hands what has come to the procedure.
    void bedienen();
    // Lets others read what it plays: the file is its title, the volume a value that it bears (spieleranzeige.hpp).
    void anzeigen();
    void verschwinden();

private:
    static std::intptr_t __stdcall Empfang(HWND__* fenster, unsigned nachricht, std::uintptr_t w, std::intptr_t l);
    // None: the system does what it always does.
    std::optional<std::intptr_t> beantworten(unsigned nachricht, std::uintptr_t w, std::intptr_t l);
    bool Dateien_empfangen(std::intptr_t l);

    Fensterprozedur& prozedur_;
    HWND__* fenster_ = nullptr;
    Text titel_;
    int lautstärke_ = -1;
};

}  // namespace tonkartei::spieler
