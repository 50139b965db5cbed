#include "mp3/bits.hpp"

#include "grundlagen/fehler.hpp"

namespace tonkartei {

Text Bytes_zu_Bits(std::array<Byte, 4>& bytes) {
    Text bits;
    bits.reserve(32);
    for (const Byte byte : bytes)
        for (int bit = 7; bit >= 0; --bit) {
            const bool gesetzt = ((byte >> bit) & 1) != 0;
            if (gesetzt || !bits.empty()) bits.push_back(gesetzt ? '1' : '0');
        }
    bytes.fill(0);
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
