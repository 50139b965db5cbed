#include "mp3/bits.hpp"

#include <bit>
#include <cstdint>

#include "grundlagen/fehler.hpp"

namespace tonkartei {

Text Bytes_zu_Bits(std::array<Byte, 4>& bytes) {
    std::uint32_t wert = 0;
    for (const Byte byte : bytes) wert = wert << 8U | byte;
    bytes.fill(0);
    const auto stellen = static_cast<int>(std::bit_width(wert));
    Text bits(static_cast<std::size_t>(stellen), '0');
    for (int i = 0; i < stellen; ++i)
        if ((wert >> (stellen - 1 - i) & 1U) != 0) bits[static_cast<std::size_t>(i)] = '1';
    return bits;
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
