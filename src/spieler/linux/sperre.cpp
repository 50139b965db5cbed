#include "spieler/linux/sperre.hpp"

#include <fcntl.h>
#include <sys/file.h>

#include <chrono>
#include <thread>

namespace tonkartei::spieler {

Sperre::Sperre(const Deskriptor& ordner, const Text& name)
    : datei_(::openat(ordner.fd(), name.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0600)) {
    using namespace std::chrono_literals;
    for (int runde = 0; datei_ && runde < 1000; ++runde) {
        if (::flock(datei_.fd(), LOCK_EX | LOCK_NB) == 0) return;
        std::this_thread::sleep_for(5ms);
    }
}

}  // namespace tonkartei::spieler
