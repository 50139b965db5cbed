#include "spieler/mpg123/spielwerk.hpp"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "spieler/mpg123/stille.hpp"

namespace tonkartei::spieler {

bool Spielwerk::laden(const Text& datei) {
    lied_.reset();
    ausgelesen_ = andere_Rate_ = false;
    try {
        lied_.emplace(platte_, datei);
    } catch (const std::exception&) {
        return false;
    }
    Ausgabe_bereiten();
    return true;
}

void Spielwerk::stoppen() {
    lied_.reset();
    ausgabe_.reset();
}

// The device stays open from song to song as long as it fits.
void Spielwerk::Ausgabe_bereiten() {
    beginn_ = lied_->Position();
    geschrieben_ = 0;
    if (ausgabe_ && ausgabe_->lebt() && ausgabe_->Rate == lied_->Rate()) {
        ausgabe_->leeren();
    } else {
        ausgabe_.reset();
        if (!stumm_) ausgabe_ = Wellenausgabe_öffnen(lied_->Rate());
        if (!ausgabe_) ausgabe_ = std::make_unique<Stille>(lied_->Rate());
    }
    ausgabe_->anhalten(angehalten_);
}

void Spielwerk::springen(std::int64_t ms) {
    lied_->springen(ms);
    ausgelesen_ = andere_Rate_ = false;
    Ausgabe_bereiten();
    // The frame that lies there begins a little earlier.
    if (beginn_ + 1 >= ms) beginn_ = ms;
}

void Spielwerk::anhalten(bool angehalten) {
    angehalten_ = angehalten;
    if (ausgabe_) ausgabe_->anhalten(angehalten);
}

// Loudness as it is felt: half the slider is an eighth of the amplitude.
void Spielwerk::Lautstärke_setzen(int wert) { anteil_ = std::pow(wert / 255.0, 3); }

std::int64_t Spielwerk::Position() { return beginn_ + ausgabe_->gespielt() * 1000 / ausgabe_->Rate; }

bool Spielwerk::weiter() {
    if (!ausgabe_->lebt()) {
        // The device was taken away: the song goes on where it was, into nothing if need be.
        springen(Position());
    }
    while (!ausgelesen_ && !andere_Rate_ && ausgabe_->Platz()) Block_füllen();
    if (!ausgelesen_ && !andere_Rate_) return true;
    if (ausgabe_->gespielt() < geschrieben_) return true;
    if (!andere_Rate_) return false;
    andere_Rate_ = false;
    Ausgabe_bereiten();
    return true;
}

void Spielwerk::Block_füllen() {
    block_.resize(ausgabe_->Blocklänge());
    const auto stück = lied_->lesen(block_);
    ausgelesen_ = stück.stand == Mp3_Strom::Stand::Ende;
    andere_Rate_ = stück.stand == Mp3_Strom::Stand::andere_Rate;
    block_.resize(stück.Werte);
    if (block_.empty()) return;
    for (auto& wert : block_) wert = static_cast<std::int16_t>(wert * anteil_);
    ausgabe_->schreiben(block_);
    geschrieben_ += static_cast<std::int64_t>(block_.size() / 2);
}

}  // namespace tonkartei::spieler
