// Failures and crashes on order: the Nth operation of a kind from now on fails, or the process ends just before it.
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <optional>

#include "grundlagen/text.hpp"

namespace tonkartei {

enum class Vorgang { öffnen, lesen, schreiben, umbenennen, löschen, kopieren, anlegen, starten };

inline constexpr std::size_t Vorgang_Anzahl = 8;

// By its name; none for an unknown one.
std::optional<Vorgang> Vorgang_von(const Text& name);

class Störungen {
public:
    // `absturz` ends the process at once; it does not return.
    explicit Störungen(std::function<void()> absturz) : absturz_(std::move(absturz)) {}

    // N counts from 1. A later order for the same operation replaces an earlier one that has not struck yet.
    void Fehler_bestellen(Vorgang vorgang, long n) { fehler_[stelle(vorgang)] = n; }
    void Absturz_bestellen(Vorgang vorgang, long n) { abstürze_[stelle(vorgang)] = n; }
    void abstürzen() const { absturz_(); }

    // Counts one operation; true when it is to fail.
    bool trifft(Vorgang vorgang);

private:
    static std::size_t stelle(Vorgang vorgang) { return static_cast<std::size_t>(vorgang); }
    static bool abgelaufen(long& rest) { return rest > 0 && --rest == 0; }

    std::function<void()> absturz_;
    std::array<long, Vorgang_Anzahl> fehler_{}, abstürze_{};
};

}  // namespace tonkartei
