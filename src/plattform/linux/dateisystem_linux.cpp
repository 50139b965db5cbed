#include "plattform/linux/dateisystem_linux.hpp"

#include <dirent.h>
#include <sys/statvfs.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "plattform/linux/kopie.hpp"
#include "plattform/linux/systemruf.hpp"

namespace tonkartei {
namespace {

Text Ordner_am_Anfang() {
    const std::unique_ptr<char, decltype(&std::free)> ordner(::getcwd(nullptr, 0), &std::free);
    return ordner ? mit_Trenner(ordner.get()) : Text(1, Trenner);
}

// A zero byte would end the path on its way into the kernel, and another file would be meant.
void prüfen(const Text& pfad) {
    if (pfad.empty() || pfad.find('\0') != Text::npos) throw Dateifehler(53, pfad);
}

}  // namespace

Dateisystem_Linux::Dateisystem_Linux() : aktueller_Ordner_(Ordner_am_Anfang()) {}

Dateisystem_Linux::~Dateisystem_Linux() {
    for (const Offen& offen : offene_)
        if (offen.fd >= 0) ::close(offen.fd);
}

Text Dateisystem_Linux::voll(const Text& pfad) const {
    prüfen(pfad);
    return ist_absolut(pfad) ? pfad : aktueller_Ordner_ + pfad;
}

Dateisystem_Linux::Offen& Dateisystem_Linux::Offen_von(Griff griff) {
    if (griff < 1 || static_cast<std::size_t>(griff) > offene_.size() || offene_[static_cast<std::size_t>(griff) - 1].fd < 0)
        throw Dateifehler(52);
    return offene_[static_cast<std::size_t>(griff) - 1];
}

const Dateisystem_Linux::Offen* Dateisystem_Linux::offen_hier(const struct stat& datei) const {
    const Offen* treffer = nullptr;
    for (const Offen& offen : offene_)
        if (offen.fd >= 0 && offen.nummer == datei.st_ino && offen.gerät == datei.st_dev)
            if (treffer == nullptr || offen.schreibend) treffer = &offen;
    return treffer;
}

Dateisystem::Griff Dateisystem_Linux::öffnen(const Text& pfad, Dateimodus modus) {
    const bool neu = modus == Dateimodus::schreiben;
    const int flags = modus == Dateimodus::lesen ? O_RDONLY : neu ? O_WRONLY : O_RDWR;
    Text ganzer = voll(pfad);
    Deskriptor fd = neu ? namen_.öffnen_oder_anlegen(ganzer, flags, 0666) : namen_.öffnen(ganzer, flags);
    if (!fd) throw Dateifehler(errno == EROFS || errno == EPERM ? 70 : Fehlernummer(errno), pfad);
    struct stat datei {};
    if (::fstat(fd.fd(), &datei) != 0) werfen(errno, pfad);
    if (!S_ISREG(datei.st_mode)) throw Dateifehler(75, pfad);
    const Offen* schon = offen_hier(datei);
    if (schon != nullptr && (schon->schreibend || modus != Dateimodus::lesen)) throw Dateifehler(55, pfad);
    if (neu && datei.st_size > 0 && ungestört([&] { return ::ftruncate(fd.fd(), 0); }) != 0) werfen(errno, pfad);

    auto platz = std::find_if(offene_.begin(), offene_.end(), [](const Offen& offen) { return offen.fd < 0; });
    if (platz == offene_.end()) platz = offene_.emplace(platz);
    platz->fd = fd.hergeben();
    platz->schreibend = modus != Dateimodus::lesen;
    platz->gerät = datei.st_dev;
    platz->nummer = datei.st_ino;
    platz->länge = static_cast<std::uint64_t>(datei.st_size);
    platz->pfad = pfad;
    platz->ordner = Ordner_von(ganzer);
    return static_cast<Griff>(platz - offene_.begin()) + 1;
}

std::size_t Dateisystem_Linux::lesen(Griff griff, std::uint64_t stelle, std::span<char> ziel) {
    const Offen& offen = Offen_von(griff);
    std::size_t gelesen = 0;
    while (gelesen < ziel.size()) {
        const auto teil = ungestört([&] {
            return ::pread(offen.fd, ziel.data() + gelesen, ziel.size() - gelesen, static_cast<off_t>(stelle + gelesen));
        });
        if (teil < 0) werfen(errno, offen.pfad);
        gelesen += static_cast<std::size_t>(teil);
        // At the known end a further call would only confirm it.
        if (teil == 0 || (!offen.schreibend && stelle + gelesen >= offen.länge)) break;
    }
    return gelesen;
}

void Dateisystem_Linux::schreiben(Griff griff, std::uint64_t stelle, std::span<const char> bytes) {
    const Offen& offen = Offen_von(griff);
    if (!offen.schreibend) throw Dateifehler(54, offen.pfad);
    if (!alles_schreiben(offen.fd, bytes.data(), bytes.size(), stelle)) werfen(errno, offen.pfad);
}

std::uint64_t Dateisystem_Linux::Länge(Griff griff) {
    const Offen& offen = Offen_von(griff);
    if (!offen.schreibend) return offen.länge;
    struct stat datei {};
    if (::fstat(offen.fd, &datei) != 0) werfen(errno, offen.pfad);
    return static_cast<std::uint64_t>(datei.st_size);
}

void Dateisystem_Linux::sichern(Griff griff) {
    const Offen& offen = Offen_von(griff);
    if (ungestört([&] { return ::fsync(offen.fd); }) != 0) werfen(errno, offen.pfad);
    if (!Ordner_sichern(offen.ordner)) werfen(errno, offen.pfad);
}

void Dateisystem_Linux::schließen(Griff griff) {
    Offen& offen = Offen_von(griff);
    const int fd = std::exchange(offen.fd, -1);
    // Some file systems tell only here that the disk is full. The descriptor is gone in any case.
    if (::close(fd) != 0 && offen.schreibend && errno != EINTR) werfen(errno, offen.pfad);
}

bool Dateisystem_Linux::Datei_da(const Text& pfad) { return Dateilänge(pfad) >= 0; }

std::int64_t Dateisystem_Linux::Dateilänge(const Text& pfad) {
    if (pfad.empty() || pfad.find('\0') != Text::npos) return -1;
    Text ganzer = voll(pfad);
    struct stat datei {};
    return namen_.ansehen(ganzer, datei, false) == 0 && S_ISREG(datei.st_mode) ? datei.st_size : -1;
}

std::optional<Zeitpunkt> Dateisystem_Linux::Änderungszeit(const Text& pfad) {
    if (pfad.empty() || pfad.find('\0') != Text::npos) return std::nullopt;
    Text ganzer = voll(pfad);
    struct stat datei {};
    if (namen_.ansehen(ganzer, datei, false) != 0 || !S_ISREG(datei.st_mode)) return std::nullopt;
    return örtlich(datei.st_mtim.tv_sec);
}

bool Dateisystem_Linux::Ordner_da(const Text& pfad) { return Art_von(pfad) == Pfadart::Ordner; }

Pfadart Dateisystem_Linux::Art_von(const Text& pfad) {
    if (pfad.empty() || pfad.find('\0') != Text::npos) return Pfadart::nichts;
    Text ganzer = voll(pfad);
    struct stat da {};
    if (namen_.ansehen(ganzer, da, false) != 0) return Pfadart::nichts;
    return S_ISREG(da.st_mode) ? Pfadart::Datei : S_ISDIR(da.st_mode) ? Pfadart::Ordner : Pfadart::nichts;
}

bool Dateisystem_Linux::gleiches_Laufwerk(const Text& a, const Text& b) {
    const auto gerät = [this](Text pfad) {
        struct stat da {};
        while (namen_.ansehen(pfad, da, false) != 0 && pfad.size() > 1) pfad = ohne_Trenner(Ordner_von(pfad));
        return da.st_dev;
    };
    return gerät(ohne_Trenner(voll(a))) == gerät(ohne_Trenner(voll(b)));
}

bool Dateisystem_Linux::gleiche_Datei(const Text& a, const Text& b) {
    struct stat eine {
    }, andere{};
    Text erster = voll(a), zweiter = voll(b);
    return namen_.ansehen(erster, eine, false) == 0 && namen_.ansehen(zweiter, andere, false) == 0 &&
           S_ISREG(eine.st_mode) && eine.st_dev == andere.st_dev && eine.st_ino == andere.st_ino;
}

std::optional<std::uint64_t> Dateisystem_Linux::freie_Bytes(const Text& ordner) {
    if (ordner.empty() || ordner.find('\0') != Text::npos) return std::nullopt;
    Text ganzer = voll(ordner);
    struct stat da {};
    struct statvfs platz {};
    if (namen_.ansehen(ganzer, da, false) != 0) return std::nullopt;
    if (ungestört([&] { return ::statvfs(ganzer.c_str(), &platz); }) != 0) return std::nullopt;
    return static_cast<std::uint64_t>(platz.f_bavail) * platz.f_frsize;
}

void Dateisystem_Linux::aktuellen_Ordner_setzen(const Text& ordner) {
    Text ganzer = voll(ordner);
    struct stat da {};
    if (namen_.ansehen(ganzer, da, false) != 0 || !S_ISDIR(da.st_mode)) throw Dateifehler(76, ordner);
    aktueller_Ordner_ = mit_Trenner(ganzer);
}

}  // namespace tonkartei
