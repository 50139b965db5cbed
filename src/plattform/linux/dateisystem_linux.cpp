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

struct Ordner_schließen {
    void operator()(DIR* ordner) const { ::closedir(ordner); }
};

Text Ordner_am_Anfang() {
    const std::unique_ptr<char, decltype(&std::free)> ordner(::getcwd(nullptr, 0), &std::free);
    return ordner ? mit_Trenner(ordner.get()) : Text(1, Trenner);
}

Text ohne_Trenner_dahinter(Text pfad) {
    while (pfad.size() > 1 && pfad.back() == Trenner) pfad.pop_back();
    return pfad;
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

// For a full path whose last name is missing: the other spelling put into it, if there is one.
bool Dateisystem_Linux::anders_geschrieben(Text& pfad, bool& Ordner_fehlt) {
    const Text glatt = ohne_Trenner_dahinter(pfad);
    const Text ordner = Ordner_von(glatt);
    Text gefunden;
    const auto ergebnis = namen_.suche(ordner, std::string_view(glatt).substr(ordner.size()), gefunden);
    Ordner_fehlt = ergebnis == Namensbuch::Ergebnis::Ordner_fehlt;
    if (ergebnis != Namensbuch::Ergebnis::gefunden || ordner + gefunden == glatt) return false;
    pfad = ordner + gefunden;
    return true;
}

// stat of a full path, which takes on the folder's spelling; 0 or the error, ENOTDIR when the folder is missing.
int Dateisystem_Linux::ansehen(Text& pfad, struct stat& ergebnis, bool Verweis_selbst) {
    const int merker = Verweis_selbst ? AT_SYMLINK_NOFOLLOW : 0;
    for (;;) {
        if (::fstatat(AT_FDCWD, pfad.c_str(), &ergebnis, merker) == 0) return 0;
        if (errno != ENOENT) return errno;
        bool Ordner_fehlt = false;
        if (!anders_geschrieben(pfad, Ordner_fehlt)) return Ordner_fehlt ? ENOTDIR : ENOENT;
    }
}

Dateisystem::Griff Dateisystem_Linux::öffnen(const Text& pfad, Dateimodus modus) {
    prüfen(pfad);
    const bool neu = modus == Dateimodus::schreiben;
    const int flags = modus == Dateimodus::lesen ? O_RDONLY : neu ? O_WRONLY : O_RDWR;
    Deskriptor fd;
    Text anderer;
    if (neu) {
        anderer = voll(pfad);
        fd = öffne_Ziel(anderer, 0666);
    } else {
        fd = ist_absolut(pfad) ? öffne(pfad, flags) : öffne(voll(pfad), flags);
        if (!fd && errno == ENOENT) {
            anderer = voll(pfad);
            bool Ordner_fehlt = false;
            if (!anders_geschrieben(anderer, Ordner_fehlt)) throw Dateifehler(Ordner_fehlt ? 76 : 53, pfad);
            fd = öffne(anderer, flags);
        }
    }
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
    return static_cast<Griff>(platz - offene_.begin()) + 1;
}

// Opens a full path for reading, in whatever case. Without a descriptor errno tells the failure.
Deskriptor Dateisystem_Linux::öffne_Quelle(Text& pfad) {
    Deskriptor fd = öffne(pfad, O_RDONLY);
    if (fd || errno != ENOENT) return fd;
    bool Ordner_fehlt = false;
    if (anders_geschrieben(pfad, Ordner_fehlt)) return öffne(pfad, O_RDONLY);
    errno = Ordner_fehlt ? ENOTDIR : ENOENT;
    return fd;
}

// Opens a full path for writing, without emptying it: the existing file of that name, in whatever case, or a new one.
// Without a descriptor errno tells the failure.
Deskriptor Dateisystem_Linux::öffne_Ziel(Text& pfad, mode_t rechte) {
    Deskriptor fd = öffne(pfad, O_WRONLY);
    if (fd || errno != ENOENT) return fd;
    bool Ordner_fehlt = false;
    const bool da = anders_geschrieben(pfad, Ordner_fehlt);
    if (Ordner_fehlt) {
        errno = ENOTDIR;
        return fd;
    }
    return da ? öffne(pfad, O_WRONLY) : öffne(pfad, O_WRONLY | O_CREAT, rechte);
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
    if (!Ordner_sichern(Ordner_von(voll(offen.pfad)))) werfen(errno, offen.pfad);
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
    return ansehen(ganzer, datei, false) == 0 && S_ISREG(datei.st_mode) ? datei.st_size : -1;
}

std::optional<Zeitpunkt> Dateisystem_Linux::Änderungszeit(const Text& pfad) {
    if (pfad.empty() || pfad.find('\0') != Text::npos) return std::nullopt;
    Text ganzer = voll(pfad);
    struct stat datei {};
    if (ansehen(ganzer, datei, false) != 0 || !S_ISREG(datei.st_mode)) return std::nullopt;
    return örtlich(datei.st_mtim.tv_sec);
}

bool Dateisystem_Linux::Ordner_da(const Text& pfad) { return Art_von(pfad) == Pfadart::Ordner; }

Pfadart Dateisystem_Linux::Art_von(const Text& pfad) {
    if (pfad.empty() || pfad.find('\0') != Text::npos) return Pfadart::nichts;
    Text ganzer = voll(pfad);
    struct stat da {};
    if (ansehen(ganzer, da, false) != 0) return Pfadart::nichts;
    return S_ISREG(da.st_mode) ? Pfadart::Datei : S_ISDIR(da.st_mode) ? Pfadart::Ordner : Pfadart::nichts;
}

void Dateisystem_Linux::umbenennen(const Text& von, const Text& nach) {
    Text quelle = ohne_Trenner_dahinter(voll(von));
    const Text gewünscht = ohne_Trenner_dahinter(voll(nach));
    Text ziel = gewünscht;
    struct stat datei {};
    struct stat dort {};
    if (const int fehler = ansehen(quelle, datei, true); fehler != 0) werfen(fehler, von);
    const int am_Ziel = ansehen(ziel, dort, true);
    const bool selbst = am_Ziel == 0 && dort.st_dev == datei.st_dev && dort.st_ino == datei.st_ino;
    const bool nur_Schreibweise = selbst && quelle == ziel && ziel != gewünscht;
    if (am_Ziel == 0 && !nur_Schreibweise) throw Dateifehler(58, nach);
    if (am_Ziel != 0 && am_Ziel != ENOENT) werfen(am_Ziel, nach);
    if (offen_hier(datei) != nullptr) throw Dateifehler(75, von);
    if (::renameat2(AT_FDCWD, quelle.c_str(), AT_FDCWD, gewünscht.c_str(), RENAME_NOREPLACE) == 0) return;
    // Not every file system can refuse by itself; the target was looked at just now.
    if ((errno == EINVAL || errno == ENOSYS) && ::rename(quelle.c_str(), gewünscht.c_str()) == 0) return;
    werfen(errno, errno == EEXIST ? nach : von);
}

void Dateisystem_Linux::löschen(const Text& pfad) {
    Text ganzer = voll(pfad);
    struct stat datei {};
    if (const int fehler = ansehen(ganzer, datei, true); fehler != 0) werfen(fehler, pfad, 70);
    if (S_ISDIR(datei.st_mode)) throw Dateifehler(53, pfad);
    if (offen_hier(datei) != nullptr) throw Dateifehler(70, pfad);
    if (::unlink(ganzer.c_str()) != 0) werfen(errno, pfad, 70);
}

void Dateisystem_Linux::Ordner_anlegen(const Text& pfad) {
    Text ganzer = voll(pfad);
    struct stat da {};
    const int fehler = ansehen(ganzer, da, true);
    if (fehler == ENOTDIR) throw Dateifehler(76, pfad);
    if (fehler != ENOENT) throw Dateifehler(75, pfad);
    if (::mkdir(ganzer.c_str(), 0777) == 0) return;
    throw Dateifehler(errno == ENOSPC || errno == EDQUOT ? 61 : 75, pfad);
}

void Dateisystem_Linux::Ordner_löschen(const Text& pfad) {
    Text ganzer = voll(pfad);
    struct stat da {};
    if (const int fehler = ansehen(ganzer, da, true); fehler != 0) throw Dateifehler(76, pfad);
    if (::rmdir(ganzer.c_str()) != 0) werfen(errno, pfad);
}

std::vector<Dateisystem::Eintrag> Dateisystem_Linux::auflisten(const Text& pfad) {
    Text ganzer = voll(pfad);
    struct stat da {};
    if (ansehen(ganzer, da, false) != 0 || !S_ISDIR(da.st_mode)) throw Dateifehler(76, pfad);
    const std::unique_ptr<DIR, Ordner_schließen> ordner(::opendir(ganzer.c_str()));
    if (!ordner) werfen(errno, pfad, 70);
    std::vector<Eintrag> einträge;
    for (;;) {
        errno = 0;
        const dirent* gelesen = ::readdir(ordner.get());
        if (gelesen == nullptr) break;
        Eintrag eintrag;
        eintrag.Name = gelesen->d_name;
        if (eintrag.Name == "." || eintrag.Name == "..") continue;
        eintrag.ist_Ordner = gelesen->d_type == DT_DIR;
        eintrag.ist_Verweis = gelesen->d_type == DT_LNK;
        struct stat genauer {};
        if (gelesen->d_type == DT_UNKNOWN &&
            ::fstatat(::dirfd(ordner.get()), gelesen->d_name, &genauer, AT_SYMLINK_NOFOLLOW) == 0) {
            eintrag.ist_Ordner = S_ISDIR(genauer.st_mode);
            eintrag.ist_Verweis = S_ISLNK(genauer.st_mode);
        }
        if (eintrag.ist_Verweis && ::fstatat(::dirfd(ordner.get()), gelesen->d_name, &genauer, 0) == 0)
            eintrag.ist_Ordner = S_ISDIR(genauer.st_mode);
        einträge.push_back(std::move(eintrag));
    }
    if (errno != 0) werfen(errno, pfad, 70);
    std::sort(einträge.begin(), einträge.end(), [](const Eintrag& a, const Eintrag& b) { return a.Name < b.Name; });
    return einträge;
}

void Dateisystem_Linux::kopieren(const Text& von, const Text& nach) {
    Text quelle = voll(von);
    Text ziel = voll(nach);
    struct stat datei {};
    const Deskriptor aus = öffne_Quelle(quelle);
    if (!aus || ::fstat(aus.fd(), &datei) != 0) werfen(errno, von);
    if (!S_ISREG(datei.st_mode)) throw Dateifehler(75, von);
    if (const Offen* offen = offen_hier(datei); offen != nullptr && offen->schreibend) throw Dateifehler(55, von);
    // A copy belongs to the user, even one from a medium that cannot be written to.
    Deskriptor in = öffne_Ziel(ziel, (datei.st_mode & 0777) | S_IRUSR | S_IWUSR);
    struct stat dort {};
    if (!in || ::fstat(in.fd(), &dort) != 0) werfen(errno, nach);
    if (!S_ISREG(dort.st_mode) || (dort.st_dev == datei.st_dev && dort.st_ino == datei.st_ino)) throw Dateifehler(75, nach);
    if (offen_hier(dort) != nullptr) throw Dateifehler(55, nach);
    if (dort.st_size > 0 && ungestört([&] { return ::ftruncate(in.fd(), 0); }) != 0) werfen(errno, nach);
    if (const int fehler = Inhalt_kopieren(aus.fd(), in.fd(), static_cast<std::uint64_t>(datei.st_size)); fehler != 0) {
        // Under a song's name a part of it would pass for the whole.
        ::unlink(ziel.c_str());
        werfen(fehler, nach);
    }
    const struct timespec zeiten[2] = {datei.st_atim, datei.st_mtim};
    if (::futimens(in.fd(), zeiten) != 0) werfen(errno, nach);
    if (::close(in.hergeben()) != 0 && errno != EINTR) werfen(errno, nach);
}

bool Dateisystem_Linux::gleiches_Laufwerk(const Text& a, const Text& b) {
    const auto gerät = [](Text pfad) {
        struct stat da {};
        while (::stat(pfad.c_str(), &da) != 0 && pfad.size() > 1) pfad = ohne_Trenner_dahinter(Ordner_von(pfad));
        return da.st_dev;
    };
    return gerät(ohne_Trenner_dahinter(voll(a))) == gerät(ohne_Trenner_dahinter(voll(b)));
}

bool Dateisystem_Linux::gleiche_Datei(const Text& a, const Text& b) {
    struct stat eine {
    }, andere{};
    Text erster = voll(a), zweiter = voll(b);
    return ansehen(erster, eine, false) == 0 && ansehen(zweiter, andere, false) == 0 && S_ISREG(eine.st_mode) &&
           eine.st_dev == andere.st_dev && eine.st_ino == andere.st_ino;
}

std::optional<std::uint64_t> Dateisystem_Linux::freie_Bytes(const Text& ordner) {
    struct statvfs platz {};
    if (ordner.empty() || ordner.find('\0') != Text::npos) return std::nullopt;
    if (ungestört([&] { return ::statvfs(voll(ordner).c_str(), &platz); }) != 0) return std::nullopt;
    return static_cast<std::uint64_t>(platz.f_bavail) * platz.f_frsize;
}

void Dateisystem_Linux::aktuellen_Ordner_setzen(const Text& ordner) {
    if (!Ordner_da(ordner)) throw Dateifehler(76, ordner);
    aktueller_Ordner_ = mit_Trenner(voll(ordner));
}

}  // namespace tonkartei
