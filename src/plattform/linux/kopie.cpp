#include "plattform/linux/kopie.hpp"

#include <linux/fs.h>
#include <sys/ioctl.h>

#include <algorithm>
#include <vector>

#include "plattform/linux/systemruf.hpp"

namespace tonkartei {
namespace {

constexpr std::uint64_t Stück = 8U << 20U;
constexpr std::uint64_t Handvoll = 256U << 10U;

// The kernel cannot copy between these two files; reading and writing can.
bool unfähig(int fehler) {
    return fehler == EXDEV || fehler == ENOSYS || fehler == EINVAL || fehler == EOPNOTSUPP || fehler == EPERM ||
           fehler == EBADF;
}

int von_Hand_kopieren(int aus, int in, std::uint64_t stelle, std::uint64_t länge) {
    std::vector<char> puffer(static_cast<std::size_t>(std::clamp<std::uint64_t>(länge - stelle, 1, Handvoll)));
    while (stelle < länge) {
        const auto gelesen =
            ungestört([&] { return ::pread(aus, puffer.data(), puffer.size(), static_cast<off_t>(stelle)); });
        if (gelesen < 0) return errno;
        if (gelesen == 0) return EIO;
        if (!alles_schreiben(in, puffer.data(), static_cast<std::size_t>(gelesen), stelle)) return errno;
        stelle += static_cast<std::uint64_t>(gelesen);
    }
    return 0;
}

}  // namespace

int Inhalt_kopieren(int aus, int in, std::uint64_t länge) {
    if (länge == 0) return 0;
    if (::ioctl(in, FICLONE, aus) == 0) return 0;
    std::uint64_t stelle = 0;
    while (stelle < länge) {
        auto lesestelle = static_cast<off_t>(stelle);
        auto schreibstelle = lesestelle;
        const auto kopiert = ungestört([&] {
            return ::copy_file_range(aus, &lesestelle, in, &schreibstelle,
                                     static_cast<std::size_t>(std::min(Stück, länge - stelle)), 0);
        });
        if (kopiert < 0 && !unfähig(errno)) return errno;
        // Some file systems answer 0 although there is something to copy.
        if (kopiert <= 0) return von_Hand_kopieren(aus, in, stelle, länge);
        stelle += static_cast<std::uint64_t>(kopiert);
    }
    return 0;
}

}  // namespace tonkartei
