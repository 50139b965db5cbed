#include "plattform/linux/rechner_linux.hpp"

#include <pwd.h>
#include <sys/file.h>

#include <array>
#include <climits>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <vector>

#include "plattform/dateisystem.hpp"
#include "plattform/linux/systemruf.hpp"
#include "plattform/linux/xdg.hpp"

namespace tonkartei {

Rechner_Linux::Rechner_Linux(Text sperrordner) : sperrordner_(std::move(sperrordner)) {}

Text Rechner_Linux::GetComputerNameA() {
    char name[256] = {};
    return ::gethostname(name, sizeof name - 1) == 0 && name[0] != '\0' ? Text(name) : "localhost";
}

Text Rechner_Linux::GetUserNameA() {
    std::vector<char> puffer(16384);
    passwd eintrag{};
    passwd* treffer = nullptr;
    if (::getpwuid_r(::geteuid(), &eintrag, puffer.data(), puffer.size(), &treffer) == 0 && treffer != nullptr)
        return treffer->pw_name;
    const char* name = std::getenv("USER");
    return name != nullptr && *name != '\0' ? Text(name) : std::to_string(::geteuid());
}

Text Rechner_Linux::Temp_Verzeichnis() {
    for (const char* name : {"TEMP", "TMP", "TMPDIR"}) {
        const char* wert = std::getenv(name);
        struct stat da {};
        if (wert != nullptr && ist_absolut(wert) && ::stat(wert, &da) == 0 && S_ISDIR(da.st_mode)) return mit_Trenner(wert);
    }
    return "/tmp/";
}

Zeitpunkt Rechner_Linux::jetzt() { return örtlich(std::time(nullptr)); }

void Rechner_Linux::Sleep(int ms) {
    if (ms <= 0) return;
    struct timespec bis {};
    ::clock_gettime(CLOCK_MONOTONIC, &bis);
    bis.tv_sec += ms / 1000;
    bis.tv_nsec += ms % 1000 * 1'000'000L;
    if (bis.tv_nsec >= 1'000'000'000L) {
        ++bis.tv_sec;
        bis.tv_nsec -= 1'000'000'000L;
    }
    // Up to a moment, not for a while: what a signal interrupts is not lost.
    while (::clock_nanosleep(CLOCK_MONOTONIC, TIMER_ABSTIME, &bis, nullptr) == EINTR) {
    }
}

bool Rechner_Linux::andere_Instanz_läuft() {
    if (andere_läuft_) return *andere_läuft_;
    const Text ordner = sperrordner_.empty() ? Laufzeitordner() : mit_Trenner(sperrordner_);
    sperre_ = öffne(ordner + "instanz.lock", O_RDWR | O_CREAT | O_NOFOLLOW, 0600);
    andere_läuft_ =
        sperre_ && ungestört([&] { return ::flock(sperre_.fd(), LOCK_EX | LOCK_NB); }) != 0 && errno == EWOULDBLOCK;
    // Who holds the lock is in the file.
    if (sperre_ && !*andere_läuft_ && ::ftruncate(sperre_.fd(), 0) == 0) ::dprintf(sperre_.fd(), "%d", ::getpid());
    return *andere_läuft_;
}

void Rechner_Linux::andere_Instanz_rufen() {
    std::array<char, 16> puffer{};
    if (!andere_läuft_.value_or(false) || ::pread(sperre_.fd(), puffer.data(), puffer.size() - 1, 0) <= 0) return;
    if (const int prozess = std::atoi(puffer.data()); prozess > 1) ::kill(prozess, SIGURG);
}

// 24 bits: exact in single precision, so never rounded up to 1.
float Rechner_Linux::Zufallszahl() { return static_cast<float>(generator_() >> 8U) / 16777216.0F; }

void Rechner_Linux::Zufall_säen() {
    struct timespec uhr {};
    ::clock_gettime(CLOCK_REALTIME, &uhr);
    std::seed_seq saat{static_cast<std::uint32_t>(uhr.tv_sec), static_cast<std::uint32_t>(uhr.tv_nsec)};
    generator_.seed(saat);
}

Text Rechner_Linux::WinAmp_Vorgabe() { return Datenordner() + "winamp/"; }

bool WinAmp_Verknüpfung_anlegen(const Text& ordner, const Text& ziel) {
    const Text verweis = mit_Trenner(ordner) + "WinAmp.Exe";
    if (!Ordner_kette_anlegen(mit_Trenner(ordner))) return false;
    char bisher[PATH_MAX];
    const auto länge = ::readlink(verweis.c_str(), bisher, sizeof bisher);
    if (länge < 0 && errno != ENOENT) return false;  // a real file, or out of reach
    if (länge >= 0 && std::string_view(bisher, static_cast<std::size_t>(länge)) == ziel) return true;
    if (länge < 0) return ::symlink(ziel.c_str(), verweis.c_str()) == 0;
    const Text neu = verweis + ".neu";
    ::unlink(neu.c_str());
    return ::symlink(ziel.c_str(), neu.c_str()) == 0 && ::rename(neu.c_str(), verweis.c_str()) == 0;
}

}  // namespace tonkartei
