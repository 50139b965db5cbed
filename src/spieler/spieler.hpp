// The player: a list of songs, what plays of it, and what each message does to it.
#pragma once

#include <chrono>
#include <cstddef>
#include <vector>

#include "spieler/fensterprozedur.hpp"
#include "spieler/klang.hpp"
#include "spieler/lautstaerke.hpp"

namespace tonkartei::spieler {

// Codes of WM_COMMAND.
inline constexpr std::int32_t Befehl_Wiedergabe = 40045, Befehl_Pause = 40046, Befehl_Stopp = 40047;
inline constexpr std::int32_t Befehl_zurück = 40144, Befehl_vor = 40148;

class Spieler final : public Fensterprozedur {
public:
    Spieler(Klang& klang, Dateisystem& platte, const Lautstärkegedächtnis& gedächtnis);

    std::int32_t Nachricht(std::uint32_t nachricht, std::int32_t w, std::int64_t l) override;
    // Files and list files. Replacing starts the first one.
    void Dateien(const std::vector<Text>& dateien, bool ersetzen) override;
    Auskunft Auskunft_geben() const override;
    void geschlossen() override;

    // What other doors than the window ask: on in the list, to a place in the song, the volume (0 to 255).
    bool hat_nächstes() const noexcept { return aktuell_ + 1 < lieder_.size(); }
    void nächstes();
    void an_Stelle(std::int64_t ms) { springen(ms); }
    void Lautstärke_stellen(int wert);
    // As the file tells them; empty unknown.
    Text Titel() const { return klang_.Titel(); }
    Text Interpret() const { return klang_.Interpret(); }

    bool Ende_verlangt() const noexcept { return ende_; }
    // Until when the loop may sleep, and what is due then: a slider that is dragged writes its last value only.
    std::chrono::steady_clock::time_point spätestens() const;
    void Fälliges_erledigen();

private:
    // Answers to message 104.
    enum class Status { gestoppt = 0, spielt = 1, pausiert = 3 };

    void Befehl(std::int32_t code);
    std::int32_t Anwenderbefehl(std::int32_t w, std::int64_t l);
    // The first song from `stelle` on that is a file begins; without one the player is stopped, the last song its current
    // one.
    void spielen_ab(std::size_t stelle);
    void stoppen();
    void anhalten(bool angehalten);
    void springen(std::int64_t ms);
    std::int32_t Position() const;
    std::int32_t Länge() const;
    void Lautstärke_merken();

    Klang& klang_;
    Dateisystem& platte_;
    const Lautstärkegedächtnis& gedächtnis_;
    std::vector<Text> lieder_;
    std::size_t aktuell_ = 0;  // position in lieder_
    Status status_ = Status::gestoppt;
    int lautstärke_;
    std::chrono::steady_clock::time_point merken_um_ = std::chrono::steady_clock::time_point::max();
    bool ende_ = false;
};

}  // namespace tonkartei::spieler
