#include "plattform/linux/systemruf.hpp"

#include <algorithm>

#include "plattform/dateisystem.hpp"

namespace tonkartei {

int Fehlernummer(int fehler, int verweigert) {
    switch (fehler) {
        case ENOENT: return 53;
        case ENOTDIR: return 76;
        case EEXIST: return 58;
        case EXDEV: return 74;
        case ENOSPC:
        case EDQUOT:
        case EFBIG: return 61;
        case EMFILE:
        case ENFILE: return 67;
        case EACCES:
        case EPERM:
        case EROFS: return verweigert;
        case EBUSY:
        case ETXTBSY: return 70;
        case EISDIR:
        case ENXIO:
        case ELOOP:
        case ENAMETOOLONG:
        case ENOTEMPTY:
        case EINVAL: return 75;
        default: return 57;
    }
}

void werfen(int fehler, const Text& pfad, int verweigert) { throw Dateifehler(Fehlernummer(fehler, verweigert), pfad); }

Deskriptor öffne(const Text& pfad, int flags, mode_t rechte) {
    return Deskriptor(ungestört([&] { return ::open(pfad.c_str(), flags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, rechte); }));
}

bool alles_schreiben(int fd, const char* bytes, std::size_t anzahl, std::uint64_t stelle) {
    while (anzahl > 0) {
        const auto geschrieben = ungestört([&] { return ::pwrite(fd, bytes, anzahl, static_cast<off_t>(stelle)); });
        if (geschrieben < 0) return false;
        if (geschrieben == 0) {
            errno = ENOSPC;
            return false;
        }
        bytes += geschrieben;
        anzahl -= static_cast<std::size_t>(geschrieben);
        stelle += static_cast<std::uint64_t>(geschrieben);
    }
    return true;
}

bool Ordner_sichern(const Text& ordner) {
    const Deskriptor fd = öffne(ordner, O_RDONLY | O_DIRECTORY);
    if (!fd) return errno == EACCES;  // a folder may be writable and not readable
    return ungestört([&] { return ::fsync(fd.fd()); }) == 0 || errno == EINVAL || errno == ENOTSUP;
}

bool Ordner_kette_anlegen(const Text& ordner) {
    for (std::size_t i = ordner.find(Trenner, 1);; i = ordner.find(Trenner, i + 1)) {
        const Text teil = ordner.substr(0, i);
        if (::mkdir(teil.c_str(), 0700) != 0 && errno != EEXIST) {
            // "/" or an automounted folder may answer otherwise although it is there.
            struct stat da {};
            const int fehler = errno;
            if (::stat(teil.c_str(), &da) != 0 || !S_ISDIR(da.st_mode)) {
                errno = fehler;
                return false;
            }
        }
        if (i == Text::npos || i + 1 == ordner.size()) break;
    }
    struct stat da {};
    if (::stat(ordner.c_str(), &da) != 0) return false;
    errno = ENOTDIR;
    return S_ISDIR(da.st_mode);
}

Zeitpunkt örtlich(std::time_t zeit) {
    std::tm teile{};
    ::localtime_r(&zeit, &teile);
    return {teile.tm_year + 1900, teile.tm_mon + 1, teile.tm_mday, teile.tm_hour, teile.tm_min, std::min(teile.tm_sec, 59)};
}

}  // namespace tonkartei
