// Sound made on the spot, for tests that play it.
#pragma once

#include <cmath>
#include <string>

namespace tonkartei {

// An MP3 file of silence: frames of 96 bytes and 24 milliseconds (32 kbit/s, 48 kHz, mono) without a tag.
inline std::string Mp3(double sekunden) {
    std::string bytes;
    for (long n = std::lround(sekunden / 0.024); n > 0; --n) bytes.append("\xFF\xFB\x14\xC0", 4).append(92, '\0');
    return bytes;
}

}  // namespace tonkartei
