// What the player's window asks of the player.
#pragma once

#include <cstdint>
#include <vector>

#include "grundlagen/text.hpp"

namespace tonkartei::spieler {

class Fensterprozedur {
public:
    struct Auskunft {
        int Lautstärke = 0, Status = 0;
        std::int32_t Position = 0, Länge = 0;
        Text Datei;
    };

    virtual ~Fensterprozedur() = default;
    virtual std::int32_t Nachricht(std::uint32_t nachricht, std::int32_t w, std::int64_t l) = 0;
    virtual void Dateien(const std::vector<Text>& dateien, bool ersetzen) = 0;
    virtual Auskunft Auskunft_geben() const = 0;
    // WM_CLOSE: the window is gone, its sender waits for the answer.
    virtual void geschlossen() = 0;
};

}  // namespace tonkartei::spieler
