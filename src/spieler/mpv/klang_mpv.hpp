// Sound by libmpv. Nothing here waits: commands are sent off, and what the library tells is kept, so that an
// audio device that hangs cannot hold up an answer.
#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>

#include "plattform/linux/deskriptor.hpp"
#include "spieler/klang.hpp"

struct mpv_handle;
struct mpv_event;

namespace tonkartei::spieler {

class Klang_mpv final : public Klang {
public:
    // `ausgabe` chooses the audio output by libmpv's names; empty: what the desktop has, or nothing in real time.
    // Throws std::runtime_error when the library cannot be set up.
    explicit Klang_mpv(const Text& ausgabe);

    // Readable when abholen() has work.
    int Wecker() const noexcept { return wecker_.fd(); }
    void abholen() override;

    void laden(const Text& datei) override;
    void stoppen() override;
    void anhalten(bool angehalten) override;
    void springen(std::int64_t ms) override;
    void Lautstärke_setzen(int wert) override;

    std::int64_t Position() const override;
    std::optional<double> Länge() const override { return länge_; }
    Text Titel() const override { return titel_; }
    Text Interpret() const override { return interpret_; }

private:
    using Uhr = std::chrono::steady_clock;
    struct Freigabe {
        void operator()(mpv_handle* mpv) const;
    };

    void vergessen();  // what was known of the song
    void verarbeiten(const mpv_event& ereignis);
    void Position_übernehmen(double sekunden);
    void Sprung_senden();
    void Sprung_vergessen();

    Deskriptor wecker_;
    std::unique_ptr<mpv_handle, Freigabe> mpv_;

    std::uint64_t kennung_ = 0;      // of the last load or jump sent off
    std::uint64_t ladekennung_ = 0;  // the load whose entry is awaited
    std::int64_t eintrag_ = -1;      // the library's name for the song; news of others is stale
    bool geladen_ = false;
    bool angehalten_ = false;
    double position_ = 0;  // seconds, as told last
    double boden_ = 0;     // seconds: what was told last before a jump or a pause took over, until the library reaches it
    Uhr::time_point erzählt_um_{};
    std::optional<double> länge_;
    Text titel_, interpret_;

    std::optional<std::int64_t> sprungziel_;  // ms
    std::uint64_t sprungkennung_ = 0;
    bool sprung_angenommen_ = false, sprung_läuft_ = false;
    Uhr::time_point sprung_gesendet_{};
};

}  // namespace tonkartei::spieler
