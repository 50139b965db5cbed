#include "bediener/leitung.hpp"

#include <fcntl.h>
#include <io.h>

#include <array>
#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <mutex>
#include <thread>

namespace tonkartei {
namespace {

// A pipe can be waited for only by reading it: a thread of its own does, and ends with the process.
class Leser {
public:
    Leser() {
        _setmode(_fileno(stdin), _O_BINARY);
        _setmode(_fileno(stdout), _O_BINARY);
        std::thread([this] { lesen(); }).detach();
    }
    // What has come, added to `ziel`; false when nothing has until the time is over. -1: for ever.
    bool nehmen(Text& ziel, bool& zu_Ende, int ms) {
        std::unique_lock sperre(schloss_);
        const auto da = [this] { return !gelesen_.empty() || zu_Ende_; };
        if (ms < 0)
            gekommen_.wait(sperre, da);
        else if (!gekommen_.wait_for(sperre, std::chrono::milliseconds(ms), da))
            return false;
        zu_Ende = gelesen_.empty();
        ziel += gelesen_;
        gelesen_.clear();
        return true;
    }

private:
    void lesen() {
        std::array<char, 4096> stück;
        for (;;) {
            const int anzahl = _read(_fileno(stdin), stück.data(), static_cast<unsigned>(stück.size()));
            const std::lock_guard sperre(schloss_);
            if (anzahl > 0)
                gelesen_.append(stück.data(), static_cast<std::size_t>(anzahl));
            else
                zu_Ende_ = true;
            gekommen_.notify_one();
            if (anzahl <= 0) return;
        }
    }

    std::mutex schloss_;
    std::condition_variable gekommen_;
    Text gelesen_;
    bool zu_Ende_ = false;
};

// The process has one input, and the thread that reads it outlives whoever asks.
Leser& der_Leser() {
    static auto* leser = new Leser;
    return *leser;
}

}  // namespace

Leitung::Lage Leitung::abwarten(int ms) {
    while (!Zeile_da()) {
        if (zu_Ende_) return Lage::Ende;
        if (!der_Leser().nehmen(puffer_, zu_Ende_, ms)) return Lage::Zeit_um;
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
    der_Leser();  // which has made the line ends ours
    std::fwrite(zeile.data(), 1, zeile.size(), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

}  // namespace tonkartei
