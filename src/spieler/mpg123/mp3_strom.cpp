#include "spieler/mpg123/mp3_strom.hpp"

#include <mpg123.h>

#include <algorithm>
#include <cstdio>
#include <stdexcept>

namespace tonkartei::spieler {

namespace {

// Bytes that may lie between two frames: pictures and tags in odd places. Without an end to it, noise would be found in what
// is no music at all.
constexpr long Höchstlänge_Schutt = 65536;
constexpr std::size_t Pufferlänge = 65536;

}  // namespace

void Mp3_Strom::Freigabe::operator()(mpg123_handle_struct* strom) const { mpg123_delete(strom); }

Mp3_Strom::Mp3_Strom(Dateisystem& platte, const Text& pfad)
    : datei_(platte, pfad, Dateimodus::lesen), strom_(mpg123_new(nullptr, nullptr)) {
    mpg123_handle* strom = strom_.get();
    if (!strom) throw std::runtime_error("no decoder");
    mpg123_param(strom, MPG123_ADD_FLAGS, MPG123_QUIET | MPG123_FORCE_STEREO | MPG123_SKIP_ID3V2, 0);
    mpg123_param(strom, MPG123_RESYNC_LIMIT, Höchstlänge_Schutt, 0);
    mpg123_format_none(strom);
    mpg123_format2(strom, 0, MPG123_STEREO, MPG123_ENC_SIGNED_16);
    mpg123_replace_reader_handle(
        strom,
        [](void* selbst, void* ziel, std::size_t anzahl) {
            return static_cast<ssize_t>(static_cast<Mp3_Strom*>(selbst)->Bytes_lesen({static_cast<char*>(ziel), anzahl}));
        },
        [](void* selbst, off_t stelle, int von_wo) {
            return static_cast<off_t>(static_cast<Mp3_Strom*>(selbst)->Stelle_setzen(stelle, von_wo));
        },
        nullptr);
    if (mpg123_open_handle(strom, this) != MPG123_OK || !Rate_übernehmen()) throw std::runtime_error("no MPEG audio");
}

bool Mp3_Strom::Rate_übernehmen() {
    long rate = 0;
    int kanäle = 0, art = 0;
    if (mpg123_getformat(strom_.get(), &rate, &kanäle, &art) != MPG123_OK || rate <= 0) return false;
    rate_ = static_cast<int>(rate);
    return true;
}

std::int64_t Mp3_Strom::Bytes_lesen(std::span<char> ziel) noexcept try {
    // The library asks for four bytes and less.
    if (stelle_ < puffer_ab_ || stelle_ >= puffer_ab_ + std::ssize(puffer_)) {
        puffer_.resize(Pufferlänge);
        puffer_ab_ = stelle_;
        puffer_.resize(datei_.lesen(static_cast<std::uint64_t>(stelle_), puffer_));
    }
    const auto vorrat = std::span(puffer_).subspan(static_cast<std::size_t>(stelle_ - puffer_ab_));
    const std::size_t n = std::min(ziel.size(), vorrat.size());
    std::copy_n(vorrat.begin(), n, ziel.begin());
    stelle_ += static_cast<std::int64_t>(n);
    return static_cast<std::int64_t>(n);
} catch (...) {
    puffer_.clear();
    return -1;
}

std::int64_t Mp3_Strom::Stelle_setzen(std::int64_t stelle, int von_wo) noexcept try {
    const std::int64_t anfang = von_wo == SEEK_CUR   ? stelle_
                                : von_wo == SEEK_END ? static_cast<std::int64_t>(datei_.Länge())
                                                     : 0;
    if (anfang + stelle < 0) return -1;
    return stelle_ = anfang + stelle;
} catch (...) {
    return -1;
}

std::optional<double> Mp3_Strom::Länge() const {
    const auto werte = mpg123_length(strom_.get());
    return werte < 0 ? std::nullopt : std::optional(static_cast<double>(werte) / rate_);
}

std::int64_t Mp3_Strom::Position() const {
    return std::max<std::int64_t>(std::int64_t{mpg123_tell(strom_.get())} * 1000 / rate_, 0);
}

void Mp3_Strom::springen(std::int64_t ms) { mpg123_seek(strom_.get(), static_cast<off_t>(ms * rate_ / 1000), SEEK_SET); }

Mp3_Strom::Stück Mp3_Strom::lesen(std::span<std::int16_t> ziel) {
    std::size_t bytes = 0;
    const int ergebnis = mpg123_read(strom_.get(), ziel.data(), ziel.size_bytes(), &bytes);
    Stück stück{Stand::Ton, bytes / sizeof(std::int16_t)};
    if (ergebnis == MPG123_NEW_FORMAT) {
        const int vorher = rate_;
        if (!Rate_übernehmen())
            stück.stand = Stand::Ende;
        else if (rate_ != vorher)
            stück.stand = Stand::andere_Rate;
    } else if (ergebnis != MPG123_OK) {
        stück.stand = Stand::Ende;
    }
    return stück;
}

}  // namespace tonkartei::spieler
