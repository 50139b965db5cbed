// Sound made on the spot, for tests that play it.
#pragma once

#include <cmath>
#include <cstdint>
#include <string>
#include <utility>

namespace tonkartei {

// A mono WAV file of silence with a low tone in it.
inline std::string Wav(double sekunden) {
    constexpr std::uint32_t Rate = 8000;
    const auto anzahl = static_cast<std::uint32_t>(sekunden * Rate);
    std::string bytes = "RIFF....WAVEfmt ";
    const auto zahl = [&](std::uint32_t wert, int länge) {
        for (int i = 0; i < länge; ++i) bytes += static_cast<char>(wert >> (8 * i));
    };
    zahl(16, 4), zahl(1, 2), zahl(1, 2), zahl(Rate, 4), zahl(Rate, 4), zahl(1, 2), zahl(8, 2);
    bytes += "data";
    zahl(anzahl, 4);
    for (std::uint32_t i = 0; i < anzahl; ++i) bytes += static_cast<char>(128 + std::lround(4 * std::sin(i * 0.2)));
    std::string größe;
    std::swap(größe, bytes);
    zahl(static_cast<std::uint32_t>(größe.size() - 8), 4);
    return größe.replace(4, 4, bytes);
}

}  // namespace tonkartei
