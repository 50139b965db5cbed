// One song through libmpv. Nothing here waits: commands are sent off, and what the library tells is kept, so that an
// audio device that hangs cannot hold up an answer.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include "grundlagen/text.hpp"
#include "plattform/linux/deskriptor.hpp"

struct mpv_handle;
struct mpv_event;

namespace tonkartei::spieler {

class Abspieler {
public:
    // `ausgabe` chooses the audio output by libmpv's names; empty: what the desktop has, or nothing in real time.
    // Throws std::runtime_error when the library cannot be set up.
    explicit Abspieler(const Text& ausgabe);
    Abspieler(const Abspieler&) = delete;
    Abspieler& operator=(const Abspieler&) = delete;

    // Readable when abholen() has work.
    int Wecker() const noexcept { return wecker_.fd(); }
    void abholen();

    // The song came to its end by itself, or could not be played. Called from abholen().
    std::function<void()> zu_Ende;

    void laden(const Text& datei);
    void stoppen();
    void anhalten(bool angehalten);
    // While the song is still being opened the jump is remembered. Beyond its end the song ends.
    void springen(std::int64_t ms);
    void Lautstärke_setzen(int wert);  // 0 to 255

    // Position in milliseconds: the target while a jump is under way. Length in seconds, none before it is known.
    std::int64_t Position() const;
    std::optional<double> Länge() const noexcept { return länge_; }
    // As the song's file tells them; empty unknown.
    const Text& Titel() const noexcept { return titel_; }
    const Text& Interpret() const noexcept { return interpret_; }

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
    double boden_ = 0;     // seconds: the last jump's target, as long as the library has not reached it
    Uhr::time_point erzählt_um_{};
    std::optional<double> länge_;
    Text titel_, interpret_;

    std::optional<std::int64_t> sprungziel_;  // ms
    std::uint64_t sprungkennung_ = 0;
    bool sprung_angenommen_ = false, sprung_läuft_ = false;
    Uhr::time_point sprung_gesendet_{};
};

}  // namespace tonkartei::spieler
