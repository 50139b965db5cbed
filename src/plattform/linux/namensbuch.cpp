#include "plattform/linux/namensbuch.hpp"

#include <dirent.h>
#include <sys/inotify.h>

#include <climits>
#include <cstring>
#include <ctime>
#include <utility>

namespace tonkartei {
namespace {

// Without notices only the modification time tells of changes, and the file system's clock ticks coarsely: a folder that
// changed so shortly before it was read may change again unseen within the tick.
constexpr long long Unschärfe_ns = 20'000'000;

constexpr std::size_t längste_Nachricht = sizeof(inotify_event) + NAME_MAX + 1;

long long Nanosekunden(const struct timespec& zeit) { return zeit.tv_sec * 1'000'000'000LL + zeit.tv_nsec; }

}  // namespace

void Namensbuch::Ordner::dazu(const Text& name) {
    const Text schlüssel = groß(name);
    const auto [von, bis] = namen.equal_range(schlüssel);
    for (auto i = von; i != bis; ++i)
        if (i->second == name) return;
    namen.emplace(schlüssel, name);
}

void Namensbuch::Ordner::weg(const Text& name) {
    const auto [von, bis] = namen.equal_range(groß(name));
    for (auto i = von; i != bis; ++i)
        if (i->second == name) {
            namen.erase(i);
            return;
        }
}

// What has come in belongs to any of the folders, not only to the one that is asked for.
void Namensbuch::Nachrichten_lesen() {
    if (!nachrichten_) return;
    alignas(inotify_event) char puffer[16 * 1024];
    for (;;) {
        const auto länge = ungestört([&] { return ::read(nachrichten_.fd(), puffer, sizeof puffer); });
        if (länge <= 0) return;
        const auto voll = static_cast<std::size_t>(länge);
        for (std::size_t i = 0; i < voll;) {
            inotify_event nachricht;
            std::memcpy(&nachricht, puffer + i, sizeof nachricht);
            const char* name = puffer + i + sizeof nachricht;
            i += sizeof nachricht + nachricht.len;
            for (Ordner& ordner : ordner_) {
                if ((nachricht.mask & IN_Q_OVERFLOW) != 0) ordner.verlässlich = false;
                if (!ordner.belegt || ordner.wache != nachricht.wd) continue;
                ordner.benachrichtigt = true;
                if ((nachricht.mask & IN_IGNORED) != 0) ordner.wache = -1;
                if ((nachricht.mask & (IN_IGNORED | IN_DELETE_SELF | IN_UNMOUNT)) != 0) ordner.verlässlich = false;
                if ((nachricht.mask & (IN_CREATE | IN_MOVED_TO)) != 0) ordner.dazu(name);
                if ((nachricht.mask & (IN_DELETE | IN_MOVED_FROM)) != 0) ordner.weg(name);
            }
        }
        if (voll + längste_Nachricht <= sizeof puffer) return;  // there was room for one more
    }
}

Namensbuch::Ordner& Namensbuch::Platz_für(const struct stat& jetzt) {
    for (Ordner& ordner : ordner_)
        if (ordner.belegt && ordner.gerät == jetzt.st_dev && ordner.nummer == jetzt.st_ino) return ordner;
    Ordner& ordner = ordner_[nächster_];
    nächster_ = (nächster_ + 1) % ordner_.size();
    if (ordner.wache >= 0) ::inotify_rm_watch(nachrichten_.fd(), ordner.wache);
    ordner = Ordner{};
    ordner.belegt = true;
    ordner.gerät = jetzt.st_dev;
    ordner.nummer = jetzt.st_ino;
    return ordner;
}

bool Namensbuch::einlesen(Ordner& ordner, const Text& pfad, const struct stat& jetzt) {
    if (!nachrichten_ && !ohne_Nachrichten_) {
        nachrichten_ = Deskriptor(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC));
        ohne_Nachrichten_ = !nachrichten_;
    }
    // Before reading: what changes meanwhile is told as well, and entering it twice does no harm.
    if (nachrichten_ && ordner.wache < 0)
        ordner.wache = ::inotify_add_watch(
            nachrichten_.fd(), pfad.c_str(),
            IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO | IN_DELETE_SELF | IN_ONLYDIR | IN_EXCL_UNLINK);
    ordner.namen.clear();
    ordner.verlässlich = false;
    DIR* verzeichnis = ::opendir(pfad.c_str());
    if (verzeichnis == nullptr) return false;
    while (const dirent* eintrag = ::readdir(verzeichnis)) ordner.namen.emplace(groß(eintrag->d_name), eintrag->d_name);
    ::closedir(verzeichnis);
    ordner.geändert = jetzt.st_mtim;
    ordner.benachrichtigt = false;
    struct timespec uhr {};
    ::clock_gettime(CLOCK_REALTIME, &uhr);
    ordner.verlässlich = ordner.wache >= 0 || Nanosekunden(uhr) - Nanosekunden(jetzt.st_mtim) > Unschärfe_ns;
    return true;
}

Namensbuch::Ergebnis Namensbuch::suche(const Text& ordner, std::string_view name, Text& gefunden) {
    struct stat jetzt {};
    if (::stat(ordner.c_str(), &jetzt) != 0 || !S_ISDIR(jetzt.st_mode)) return Ergebnis::Ordner_fehlt;
    Nachrichten_lesen();
    Ordner& seiner = Platz_für(jetzt);
    if (std::exchange(seiner.benachrichtigt, false)) seiner.geändert = jetzt.st_mtim;
    if (!seiner.verlässlich || Nanosekunden(seiner.geändert) != Nanosekunden(jetzt.st_mtim))
        if (!einlesen(seiner, ordner, jetzt)) return Ergebnis::Name_fehlt;
    const auto [von, bis] = seiner.namen.equal_range(groß(name));
    if (von == bis) return Ergebnis::Name_fehlt;
    auto bester = von;
    for (auto i = von; i != bis && bester->second != name; ++i)
        if (i->second == name || i->second < bester->second) bester = i;
    gefunden = bester->second;
    return Ergebnis::gefunden;
}

}  // namespace tonkartei
