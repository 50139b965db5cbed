// Where the sound goes: 16-bit stereo in blocks, which it takes ahead of their time.
#pragma once

#include <cstdint>
#include <memory>
#include <span>

namespace tonkartei::spieler {

class Tonausgabe {
public:
    explicit Tonausgabe(int rate) : Rate(rate) {}
    virtual ~Tonausgabe() = default;
    Tonausgabe(const Tonausgabe&) = delete;
    Tonausgabe& operator=(const Tonausgabe&) = delete;

    const int Rate;                                                                     // frames a second
    std::size_t Blocklänge() const { return static_cast<std::size_t>(Rate / 40) * 2; }  // values of a block at most

    // False once the device has gone.
    virtual bool lebt() const = 0;
    // Takes another block now.
    virtual bool Platz() = 0;
    virtual void schreiben(std::span<const std::int16_t> block) = 0;
    virtual void anhalten(bool angehalten) = 0;
    // What was taken and not heard is dropped; counting begins anew.
    virtual void leeren() = 0;
    // Frames heard since the beginning or since it was emptied.
    virtual std::int64_t gespielt() = 0;
};

// The sound device that the user has chosen for the system; none when there is none or it does not take this rate.
std::unique_ptr<Tonausgabe> Wellenausgabe_öffnen(int rate);

}  // namespace tonkartei::spieler
