// Plays into nothing, in real time: for machines without a sound device.
#pragma once

#include <algorithm>
#include <chrono>

#include "spieler/mpg123/tonausgabe.hpp"

namespace tonkartei::spieler {

class Stille final : public Tonausgabe {
public:
    using Tonausgabe::Tonausgabe;

    bool lebt() const override { return true; }
    // A second ahead: a machine that is busy elsewhere for a moment loses no time so.
    bool Platz() override { return geschrieben_ - gespielt() < Rate; }
    void schreiben(std::span<const std::int16_t> block) override {
        nachrechnen();
        geschrieben_ += static_cast<std::int64_t>(block.size() / 2);
    }
    void anhalten(bool angehalten) override {
        nachrechnen();
        angehalten_ = angehalten;
    }
    void leeren() override {
        gespielt_ = 0;
        geschrieben_ = 0;
        zuletzt_ = Uhr::now();
    }
    std::int64_t gespielt() override {
        nachrechnen();
        return static_cast<std::int64_t>(gespielt_);
    }

private:
    using Uhr = std::chrono::steady_clock;

    void nachrechnen() {
        const auto jetzt = Uhr::now();
        const double vergangen = std::chrono::duration<double>(jetzt - zuletzt_).count() * Rate;
        zuletzt_ = jetzt;
        if (!angehalten_) gespielt_ = std::min(gespielt_ + vergangen, static_cast<double>(geschrieben_));
    }

    double gespielt_ = 0;
    std::int64_t geschrieben_ = 0;
    bool angehalten_ = false;
    Uhr::time_point zuletzt_ = Uhr::now();
};

}  // namespace tonkartei::spieler
