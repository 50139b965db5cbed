// The sound of the player, as the player sees it: one song at a time. Nothing here waits for a device or a disk; what takes
// its time happens elsewhere and is told by abholen().
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "grundlagen/text.hpp"

namespace tonkartei::spieler {

class Klang {
public:
    Klang() = default;
    virtual ~Klang() = default;
    Klang(const Klang&) = delete;
    Klang& operator=(const Klang&) = delete;

    // Takes the news; the loop calls it whenever the engine wakes it.
    virtual void abholen() = 0;
    // The song came to its end by itself, or could not be played. Called from abholen().
    std::function<void()> zu_Ende;

    virtual void laden(const Text& datei) = 0;
    virtual void stoppen() = 0;
    virtual void anhalten(bool angehalten) = 0;
    // While the song is still being opened the jump is remembered. Beyond its end the song ends.
    virtual void springen(std::int64_t ms) = 0;
    virtual void Lautstärke_setzen(int wert) = 0;  // 0 to 255

    // Position in milliseconds: the target while a jump is under way. Length in seconds, none before it is known.
    virtual std::int64_t Position() const = 0;
    virtual std::optional<double> Länge() const = 0;
    // As the song's file tells them, for whoever shows them; empty unknown.
    virtual Text Titel() const { return {}; }
    virtual Text Interpret() const { return {}; }
};

}  // namespace tonkartei::spieler
