#include "plattform/linux/schreibtisch.hpp"

#include <dirent.h>
#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>

#include <algorithm>
#include <charconv>
#include <cstring>
#include <string>

#include "plattform/linux/xdg.hpp"

namespace tonkartei::schreibtisch {

Deskriptor öffnen(bool anlegen) {
    const Text pfad = Laufzeitordner() + "fenster";
    if (anlegen) ::mkdir(pfad.c_str(), 0700);
    Deskriptor ordner(::open(pfad.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    struct stat st;
    if (!ordner || ::fstat(ordner.fd(), &st) != 0) return {};
    if (st.st_uid != ::geteuid()) return {};
    if ((st.st_mode & 0777) != 0700 && ::fchmod(ordner.fd(), 0700) != 0) return {};
    return ordner;
}

std::optional<Hwnd> Griff_aus(const char* name) {
    const std::size_t länge = std::strlen(name);
    Hwnd griff = 0;
    const auto [ende, fehler] = std::from_chars(name, name + länge, griff);
    if (fehler != std::errc() || ende != name + länge || name[0] == '0' || griff < Erster_Fenstergriff) return std::nullopt;
    return griff;
}

std::map<Hwnd, std::uint64_t> Fenster(const Deskriptor& ordner) {
    std::map<Hwnd, std::uint64_t> ergebnis;
    const int kopie = ::fcntl(ordner.fd(), F_DUPFD_CLOEXEC, 0);
    DIR* verzeichnis = kopie >= 0 ? ::fdopendir(kopie) : nullptr;
    if (!verzeichnis) {
        if (kopie >= 0) ::close(kopie);
        return ergebnis;
    }
    ::rewinddir(verzeichnis);
    while (const dirent* eintrag = ::readdir(verzeichnis)) {
        if (eintrag->d_type != DT_SOCK && eintrag->d_type != DT_UNKNOWN) continue;
        if (const auto griff = Griff_aus(eintrag->d_name)) ergebnis.emplace(*griff, eintrag->d_ino);
    }
    ::closedir(verzeichnis);
    return ergebnis;
}

sockaddr_un Adresse(const Deskriptor& ordner, const Text& name) {
    sockaddr_un adresse{};
    adresse.sun_family = AF_UNIX;
    const Text pfad = "/proc/self/fd/" + std::to_string(ordner.fd()) + "/" + name;
    std::memcpy(adresse.sun_path, pfad.c_str(), std::min(pfad.size(), sizeof(adresse.sun_path) - 1));
    return adresse;
}

bool eigener_Benutzer(int fd) {
    ucred wer{};
    socklen_t länge = sizeof(wer);
    return ::getsockopt(fd, SOL_SOCKET, SO_PEERCRED, &wer, &länge) == 0 && wer.uid == ::geteuid();
}

}  // namespace tonkartei::schreibtisch
