// Many lines in a row for one channel: put together in place and handed over in large pieces. The forms are those of Kanäle.
#pragma once

#include <charconv>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#include "grundlagen/codepage.hpp"
#include "plattform/kanaele.hpp"

namespace tonkartei {

// What was put in is in the channel after `übergeben`, or when a piece was full; a failed write throws from there.
class Zeilenbau {
public:
    Zeilenbau(Kanäle& kanäle, int nummer) : kanäle_(kanäle), nummer_(nummer), puffer_(Stück, '\0') {}

    void Zeile(std::string_view text) {
        char* ziel = Platz(text.size());
        std::uint64_t acht = 0, alle = 0;
        std::size_t i = 0;
        for (; i + 8 <= text.size(); i += 8) {
            std::memcpy(&acht, text.data() + i, 8);
            std::memcpy(ziel + i, &acht, 8);
            alle |= acht;
        }
        for (; i < text.size(); ++i) {
            ziel[i] = text[i];
            alle |= static_cast<unsigned char>(text[i]);
        }
        if ((alle & 0x8080808080808080U) == 0) {
            beenden(ziel + text.size());
            return;
        }
        // No character is longer on the page than in UTF-8.
        beenden(nach_1252(text, ziel));
    }
    void Zahl(std::int64_t wert) {
        char* ziel = Platz(längste_Zahl);
        if (wert >= 0) *ziel++ = ' ';
        ziel = Ziffern(ziel, wert);
        *ziel++ = ' ';
        beenden(ziel);
    }
    void reine_Zahl(std::int64_t wert) { beenden(Ziffern(Platz(längste_Zahl), wert)); }

    void übergeben() {
        kanäle_.schreibe_Bytes(nummer_, std::string_view(puffer_).substr(0, belegt_));
        belegt_ = 0;
    }

private:
    static constexpr std::size_t Stück = 100 * 1024;
    static constexpr std::size_t längste_Zahl = 24;

    static char* Ziffern(char* ziel, std::int64_t wert) {
        if (wert >= 0 && wert < 10) {
            *ziel = static_cast<char>('0' + wert);
            return ziel + 1;
        }
        return std::to_chars(ziel, ziel + längste_Zahl, wert).ptr;
    }
    char* Platz(std::size_t länge) {
        if (belegt_ + länge + 2 > puffer_.size()) [[unlikely]]
            Platz_schaffen(länge + 2);
        return puffer_.data() + belegt_;
    }
    void Platz_schaffen(std::size_t länge) {
        übergeben();
        if (länge > puffer_.size()) puffer_.resize(länge);
    }
    void beenden(char* ende) {
        *ende++ = '\r';
        *ende++ = '\n';
        belegt_ = static_cast<std::size_t>(ende - puffer_.data());
    }

    Kanäle& kanäle_;
    int nummer_;
    std::string puffer_;
    std::size_t belegt_ = 0;
};

}  // namespace tonkartei
