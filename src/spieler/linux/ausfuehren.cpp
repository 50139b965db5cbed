#include "spieler/ausfuehren.hpp"

#include <poll.h>
#include <sys/signalfd.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <stdexcept>

#include "plattform/linux/dateisystem_linux.hpp"
#include "plattform/linux/fenstersystem_linux.hpp"
#include "plattform/linux/schreibtisch.hpp"
#include "spieler/linux/fenster.hpp"
#include "spieler/linux/sperre.hpp"
#include "spieler/mpris/medienbus.hpp"
#include "spieler/mpv/klang_mpv.hpp"
#include "spieler/spieler.hpp"
#include "spieler/zustandsordner.hpp"

namespace tonkartei::spieler {
namespace {

using Uhr = std::chrono::steady_clock;

constexpr auto Frist_Übergabe = std::chrono::seconds(2);  // generous: a second player would be worse than a wait
constexpr unsigned Frist_Ende = 3;                        // seconds for the library to let go of its device

// The signals that end a process arrive as something to read, so that an end by signal is an orderly one.
Deskriptor Endesignale() {
    sigset_t signale;
    sigemptyset(&signale);
    for (const int s : {SIGTERM, SIGINT, SIGHUP}) sigaddset(&signale, s);
    sigprocmask(SIG_BLOCK, &signale, nullptr);
    std::signal(SIGPIPE, SIG_IGN);
    return Deskriptor(::signalfd(-1, &signale, SFD_CLOEXEC | SFD_NONBLOCK));
}

int Wartezeit(Uhr::time_point bis) {
    if (bis == Uhr::time_point::max()) return -1;
    const auto rest = std::chrono::ceil<std::chrono::milliseconds>(bis - Uhr::now()).count();
    return static_cast<int>(std::clamp<std::int64_t>(rest, 0, 60'000));
}

void Schleife(Fenster& fenster, Spieler& spieler, Klang_mpv& klang, const Deskriptor& signale) {
    std::vector<pollfd> liste;
    Medienbus bus(spieler);
    while (fenster.offen() && !spieler.Ende_verlangt()) {
        liste.assign({{signale.fd(), POLLIN, 0}, {klang.Wecker(), POLLIN, 0}, bus.Wache()});
        fenster.anmelden(liste);
        const auto bis = std::min({fenster.spätestens(), spieler.spätestens(), bus.spätestens()});
        if (::poll(liste.data(), liste.size(), Wartezeit(bis)) < 0) continue;
        if (liste[0].revents != 0) {
            fenster.verschwinden();
            spieler.geschlossen();
            return;
        }
        if (liste[1].revents != 0) klang.abholen();
        fenster.bedienen(liste);
        bus.bedienen();
        spieler.Fälliges_erledigen();
    }
}

bool übergeben(const Argumente& argumente) {
    Fenstersystem_Linux fenster{Frist_Übergabe};
    const Hwnd anderer = fenster.FindWindowA(argumente.Klasse);
    return anderer != 0 && fenster.Dateien_übergeben(anderer, argumente.Dateien);
}

}  // namespace

void ausführen(const Argumente& argumente) {
    // From the look for a player of the class until there is one, nobody else of the class may look: so that of several
    // that start at once one stays.
    const Deskriptor ordner = schreibtisch::öffnen(true);
    if (!ordner) throw std::runtime_error("no folder for windows");
    std::optional<Sperre> sperre;
    if (!argumente.neu) {
        sperre.emplace(ordner, ".klasse-" + Dateiname_aus_Klasse(argumente.Klasse));
        if (übergeben(argumente)) return;
    }

    const Deskriptor signale = Endesignale();
    const char* ton = std::getenv("TONKARTEI_TON");
    Dateisystem_Linux platte;
    const Lautstärkegedächtnis gedächtnis(platte, Zustandsordner(), argumente.Klasse);
    Klang_mpv klang(ton ? ton : "");
    Spieler spieler(klang, platte, gedächtnis);
    if (!argumente.Dateien.empty()) spieler.Dateien(argumente.Dateien, true);
    Fenster fenster(argumente.Klasse, spieler);
    sperre.reset();
    if (::chdir("/") != 0) std::perror("chdir");

    Schleife(fenster, spieler, klang, signale);
    ::alarm(Frist_Ende);  // a sound device that hangs must not keep the process
}

}  // namespace tonkartei::spieler
