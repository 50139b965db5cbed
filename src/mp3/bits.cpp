#include "mp3/bits.hpp"

#include <algorithm>

#include "grundlagen/fehler.hpp"

namespace tonkartei {

Text Bytes_zu_Bits(std::array<Byte, 4>& bytes) {
    std::array<char, 32> bits;
    std::size_t stelle = 0;
    for (const Byte byte : bytes)
        for (int bit = 7; bit >= 0; --bit) bits[stelle++] = ((byte >> bit) & 1) != 0 ? '1' : '0';
    bytes.fill(0);
    const std::string_view alle(bits.data(), bits.size());
    return Text(alle.substr(std::min(alle.find('1'), alle.size())));
}

Long Bits_zu_Zahl(std::string_view bits) {
    constexpr std::size_t höchste_Potenz = 30;  // what a Long holds beside its sign
    Long zahl = 0;
    for (std::size_t i = 0; i < bits.size(); ++i) {
        if (bits[i] != '1') continue;
        const std::size_t potenz = bits.size() - 1 - i;
        if (potenz > höchste_Potenz) throw Laufzeitfehler(Fehler_Überlauf);
        zahl += Long{1} << potenz;  // every power occurs once, so the sum fits
    }
    return zahl;
}

}  // namespace tonkartei
