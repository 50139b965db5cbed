// What the disk's part does with names: renaming, deleting, folders, copying.
#include <dirent.h>

#include <algorithm>
#include <cstdio>
#include <memory>

#include "plattform/linux/dateisystem_linux.hpp"
#include "plattform/linux/kopie.hpp"
#include "plattform/linux/systemruf.hpp"

namespace tonkartei {
namespace {

struct Ordner_schließen {
    void operator()(DIR* ordner) const { ::closedir(ordner); }
};

}  // namespace

void Dateisystem_Linux::umbenennen(const Text& von, const Text& nach) {
    Text quelle = ohne_Trenner(voll(von));
    Text ziel = ohne_Trenner(voll(nach));
    const Text name = Dateiname_von(ziel);
    struct stat datei {};
    if (const int fehler = namen_.ansehen(quelle, datei, true); fehler != 0) werfen(fehler, von);
    const int am_Ziel = namen_.vergeben(ziel);
    const bool nur_Schreibweise = am_Ziel == EEXIST && quelle == ziel && Dateiname_von(ziel) != name;
    if (am_Ziel != ENOENT && !nur_Schreibweise) werfen(am_Ziel, nach);
    if (offen_hier(datei) != nullptr) throw Dateifehler(75, von);
    ziel = Ordner_von(ziel) + name;
    if (::renameat2(AT_FDCWD, quelle.c_str(), AT_FDCWD, ziel.c_str(), RENAME_NOREPLACE) == 0) return;
    if (errno == EINVAL || errno == ENOSYS) {  // not every file system can refuse by itself
        if (!nur_Schreibweise && ::lstat(ziel.c_str(), &datei) == 0) throw Dateifehler(58, nach);
        if (::rename(quelle.c_str(), ziel.c_str()) == 0) return;
    }
    werfen(errno, errno == EEXIST ? nach : von);
}

void Dateisystem_Linux::ersetzen(const Text& von, const Text& nach) {
    Text quelle = voll(von), ziel = voll(nach);
    struct stat datei {};
    struct stat dort {};
    if (const int fehler = namen_.ansehen(quelle, datei, true); fehler != 0) werfen(fehler, von);
    if (const int fehler = namen_.ansehen(ziel, dort, true); fehler != 0) werfen(fehler, nach);
    // Renaming a file onto its own second name would do nothing and call that success.
    if (S_ISDIR(datei.st_mode) || S_ISDIR(dort.st_mode) || (dort.st_dev == datei.st_dev && dort.st_ino == datei.st_ino))
        throw Dateifehler(75, nach);
    if (offen_hier(datei) != nullptr) throw Dateifehler(75, von);
    if (offen_hier(dort) != nullptr) throw Dateifehler(75, nach);
    if (::rename(quelle.c_str(), ziel.c_str()) != 0) werfen(errno, von);
}

void Dateisystem_Linux::löschen(const Text& pfad) {
    Text ganzer = voll(pfad);
    struct stat datei {};
    if (const int fehler = namen_.ansehen(ganzer, datei, true); fehler != 0) werfen(fehler, pfad, 70);
    if (S_ISDIR(datei.st_mode)) throw Dateifehler(53, pfad);
    if (offen_hier(datei) != nullptr) throw Dateifehler(70, pfad);
    if (::unlink(ganzer.c_str()) != 0) werfen(errno, pfad, 70);
}

void Dateisystem_Linux::Ordner_anlegen(const Text& pfad) {
    Text ganzer = voll(pfad);
    struct stat da {};
    const int fehler = namen_.ansehen(ganzer, da, true);
    if (fehler == ENOTDIR) throw Dateifehler(76, pfad);
    if (fehler != ENOENT) throw Dateifehler(75, pfad);
    if (::mkdir(ganzer.c_str(), 0777) == 0) return;
    throw Dateifehler(errno == ENOSPC || errno == EDQUOT ? 61 : 75, pfad);
}

void Dateisystem_Linux::Ordner_löschen(const Text& pfad) {
    Text ganzer = voll(pfad);
    struct stat da {};
    if (const int fehler = namen_.ansehen(ganzer, da, true); fehler != 0) throw Dateifehler(76, pfad);
    if (::rmdir(ganzer.c_str()) != 0) werfen(errno, pfad);
}

std::vector<Dateisystem::Eintrag> Dateisystem_Linux::auflisten(const Text& pfad) {
    Text ganzer = voll(pfad);
    struct stat da {};
    if (namen_.ansehen(ganzer, da, false) != 0 || !S_ISDIR(da.st_mode)) throw Dateifehler(76, pfad);
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
    const Deskriptor aus = namen_.öffnen(quelle, O_RDONLY);
    if (!aus || ::fstat(aus.fd(), &datei) != 0) werfen(errno, von);
    if (!S_ISREG(datei.st_mode)) throw Dateifehler(75, von);
    if (const Offen* offen = offen_hier(datei); offen != nullptr && offen->schreibend) throw Dateifehler(55, von);
    // A copy belongs to the user, even one from a medium that cannot be written to.
    Deskriptor in = namen_.öffnen_oder_anlegen(ziel, O_WRONLY, (datei.st_mode & 0777) | S_IRUSR | S_IWUSR);
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

}  // namespace tonkartei
