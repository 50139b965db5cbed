// A simulated machine: fixed names, a clock that moves only when told, chance on order.
#pragma once

#include <cstdint>
#include <deque>
#include <random>

#include "plattform/rechner.hpp"

namespace tonkartei {

class Rechner_Probe : public Rechner {
public:
    // The temporary folder ends with a separator; it must exist.
    Rechner_Probe(const Zeitpunkt& uhr, Text temp_ordner, bool zweite_Instanz);

    // Milliseconds since the start.
    std::int64_t Uhr() const noexcept { return ms_; }
    void Uhr_vor(std::int64_t ms) { ms_ += ms; }
    // The next value of the generator; 0 <= wert < 1. Values wait in a queue that seeding does not touch.
    void Zufall_bestellen(double wert) { bestellt_.push_back(wert); }

    Text GetComputerNameA() override { return "RECHNER"; }
    Text GetUserNameA() override { return "BENUTZER"; }
    Text Temp_Verzeichnis() override { return temp_; }
    Zeitpunkt jetzt() override;
    void Sleep(int ms) override { Uhr_vor(ms); }
    bool andere_Instanz_läuft() override { return zweite_Instanz_; }
    float Zufallszahl() override;
    void Zufall_säen() override;
    Text WinAmp_Vorgabe() override { return "C:\\Programme\\WinAmp\\"; }

private:
    std::int64_t beginn_;  // seconds of the calendar
    std::int64_t ms_ = 0;
    Text temp_;
    bool zweite_Instanz_;
    std::deque<double> bestellt_;
    std::mt19937 zahlen_;
    std::uint32_t aussaaten_ = 0;
};

}  // namespace tonkartei
