// One MPEG audio file as sound: 16-bit stereo frames at the file's own rate, whatever the file has.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "plattform/offene_datei.hpp"

struct mpg123_handle_struct;

namespace tonkartei::spieler {

class Mp3_Strom {
public:
    enum class Stand {
        Ton,
        andere_Rate,  // what follows has another rate than what came so far
        Ende,         // also where nothing more can be made of the file
    };
    struct Stück {
        Stand stand = Stand::Ton;
        std::size_t Werte = 0;  // two a frame
    };

    // Throws Dateifehler, or std::runtime_error for what is no MPEG audio.
    Mp3_Strom(Dateisystem& platte, const Text& pfad);
    Mp3_Strom(const Mp3_Strom&) = delete;
    Mp3_Strom& operator=(const Mp3_Strom&) = delete;

    int Rate() const noexcept { return rate_; }  // frames a second
    // Seconds; an estimate where the file does not tell.
    std::optional<double> Länge() const;
    // Where the next frames belong, in milliseconds.
    std::int64_t Position() const;
    // Beyond the end there is nothing more to read.
    void springen(std::int64_t ms);
    Stück lesen(std::span<std::int16_t> ziel);

private:
    struct Freigabe {
        void operator()(mpg123_handle_struct* strom) const;
    };
    // For the library: reading and seeking in the file.
    std::int64_t Bytes_lesen(std::span<char> ziel) noexcept;
    std::int64_t Stelle_setzen(std::int64_t stelle, int von_wo) noexcept;
    bool Rate_übernehmen();

    Offene_Datei datei_;
    std::int64_t stelle_ = 0;
    std::vector<char> puffer_;  // of the file, from byte puffer_ab_ on
    std::int64_t puffer_ab_ = 0;
    int rate_ = 0;
    std::unique_ptr<mpg123_handle_struct, Freigabe> strom_;
};

}  // namespace tonkartei::spieler
