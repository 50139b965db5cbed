// Writes lines in place, into room that somebody has made; the forms of the file channels.
#pragma once

#include <charconv>
#include <cstddef>
#include <cstdint>

#include "grundlagen/codepage.hpp"
#include "grundlagen/text.hpp"

namespace tonkartei {

class Zeilenstift {
public:
    // What a line takes at most beside a text's own bytes: sign, blank, the digits of 64 bits, blank, line end.
    static constexpr std::size_t Zahlenzeile = 24;

    explicit Zeilenstift(char* ziel) : ziel_(ziel) {}

    // In the code page; no character is longer there than in UTF-8.
    void Zeile(const Text& text) {
        ziel_ = nach_1252(text, ziel_);
        beenden();
    }
    // " 6 " or "-1 ".
    void Zahl(std::int64_t wert) {
        if (wert >= 0) *ziel_++ = ' ';
        Ziffern(wert);
        *ziel_++ = ' ';
        beenden();
    }
    // "45".
    void reine_Zahl(std::int64_t wert) {
        Ziffern(wert);
        beenden();
    }
    char* Ende() const { return ziel_; }

private:
    void Ziffern(std::int64_t wert) {
        if (wert >= 0 && wert < 10)
            *ziel_++ = static_cast<char>('0' + wert);
        else
            ziel_ = std::to_chars(ziel_, ziel_ + Zahlenzeile, wert).ptr;
    }
    void beenden() {
        *ziel_++ = '\r';
        *ziel_++ = '\n';
    }

    char* ziel_;
};

}  // namespace tonkartei
