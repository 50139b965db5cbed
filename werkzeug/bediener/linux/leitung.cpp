#include "bediener/leitung.hpp"

#include <poll.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>

namespace tonkartei {

Leitung::Lage Leitung::abwarten(int ms) {
    while (!Zeile_da()) {
        if (zu_Ende_) return Lage::Ende;
        pollfd auge{STDIN_FILENO, POLLIN, 0};
        const int bereit = poll(&auge, 1, ms);
        if (bereit < 0 && errno == EINTR) continue;
        if (bereit == 0) return Lage::Zeit_um;
        std::array<char, 4096> stück;
        const ssize_t gelesen = read(STDIN_FILENO, stück.data(), stück.size());
        if (gelesen < 0 && errno == EINTR) continue;
        if (gelesen <= 0)
            zu_Ende_ = true;
        else
            puffer_.append(stück.data(), static_cast<std::size_t>(gelesen));
    }
    return Lage::Zeile;
}

Text Leitung::Zeile() {
    const std::size_t ende = puffer_.find('\n');
    Text zeile = puffer_.substr(0, ende);
    puffer_.erase(0, ende == Text::npos ? ende : ende + 1);
    return zeile;
}

void Leitung::schreiben(const Text& zeile) {
    std::fwrite(zeile.data(), 1, zeile.size(), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

}  // namespace tonkartei
