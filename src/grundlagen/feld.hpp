// Arrays with positions from 1 and a bounds check; every position answers, used or not.
#pragma once

#include <array>
#include <cstddef>
#include <memory>

#include "grundlagen/fehler.hpp"

namespace tonkartei {

// N values of T at the positions 1 to N. Any other position is run-time error 9. Memory is taken block by block on the first
// writing access, so that a large array costs nothing before it holds something; reading a position that was never
// touched gives the start value. References stay good for the life of the array.
template <class T, std::size_t N>
class Feld {
public:
    T& operator[](long long stelle) {
        const std::size_t i = geprüft(stelle);
        auto& block = blöcke_[i / Blockgröße];
        if (!block) block = std::make_unique<Block>();
        return (*block)[i % Blockgröße];
    }
    const T& operator[](long long stelle) const {
        static const T Startwert{};
        const std::size_t i = geprüft(stelle);
        const auto& block = blöcke_[i / Blockgröße];
        return block ? (*block)[i % Blockgröße] : Startwert;
    }
    static constexpr std::size_t Größe() { return N; }
    // All positions back to the start value, memory given back. Ends all references.
    void leeren() { blöcke_ = {}; }

private:
    static constexpr std::size_t Blockgröße = N < 64 ? N : 64;
    using Block = std::array<T, Blockgröße>;

    static std::size_t geprüft(long long stelle) {
        if (stelle < 1 || stelle > static_cast<long long>(N)) throw Laufzeitfehler(Fehler_Index);
        return static_cast<std::size_t>(stelle - 1);
    }
    std::array<std::unique_ptr<Block>, (N + Blockgröße - 1) / Blockgröße> blöcke_{};
};

}  // namespace tonkartei
