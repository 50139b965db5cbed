#include "plattform/linux/shell_linux.hpp"

#include <sys/wait.h>

#include <csignal>

#include "plattform/linux/befehlstext.hpp"
#include "plattform/linux/systemruf.hpp"

namespace tonkartei {
namespace {

// Runs in the child, where only calls may be made that are safe between fork and exec. Ends only by a failure, which is
// told through the pipe.
[[noreturn]] void Kind(char* const* argumente, int meldung) {
    const auto aufgeben = [&] {
        const int fehler = errno;
        [[maybe_unused]] const auto egal = ::write(meldung, &fehler, sizeof fehler);
        ::_exit(127);
    };
    ::setsid();
    // The second fork leaves the process to init: no zombie stays with us, and we need not wait for it.
    const pid_t enkel = ::fork();
    if (enkel < 0) aufgeben();
    if (enkel > 0) ::_exit(0);
    sigset_t keine;
    ::sigemptyset(&keine);
    ::sigprocmask(SIG_SETMASK, &keine, nullptr);
    for (const int nummer : {SIGPIPE, SIGXFSZ, SIGHUP, SIGINT, SIGTERM, SIGCHLD}) ::signal(nummer, SIG_DFL);
    const int leer = ::open("/dev/null", O_RDWR);
    if (leer >= 0) {
        ::dup2(leer, STDIN_FILENO);
        ::dup2(leer, STDOUT_FILENO);
        ::dup2(leer, STDERR_FILENO);
    }
    // Not every library marks its files; the pipe closes by itself the same way.
    ::close_range(3, ~0U, CLOSE_RANGE_CLOEXEC);
    ::execv(argumente[0], argumente);
    aufgeben();
    ::_exit(127);
}

}  // namespace

Shell_Linux::Shell_Linux(Dateisystem& dateien, Papierkorb& papierkorb, Shell_Frage frage)
    : dateien_(dateien), papierkorb_(papierkorb), frage_(std::move(frage)) {}

Shell_Ergebnis Shell_Linux::SHFileOperationA(const Shell_Vorgang& vorgang) {
    return Shell_Dateivorgang(dateien_, papierkorb_, frage_, vorgang).ausführen();
}

void Shell_Linux::starten(const Text& befehl, int) {
    auto teile = Befehl_zerlegt(befehl, dateien_.aktueller_Ordner());
    if (!teile) throw Dateifehler(53, befehl);
    std::vector<char*> argumente;
    for (Text& teil : *teile) argumente.push_back(teil.data());
    argumente.push_back(nullptr);

    int rohr[2];
    if (::pipe2(rohr, O_CLOEXEC) != 0) werfen(errno, befehl);
    const Deskriptor lesend(rohr[0]);
    // Out of the way of the three standard numbers, which this process may have been started without.
    Deskriptor schreibend(::fcntl(Deskriptor(rohr[1]).fd(), F_DUPFD_CLOEXEC, 3));
    const pid_t kind = ::fork();
    if (kind < 0) werfen(errno, befehl);
    if (kind == 0) Kind(argumente.data(), schreibend.fd());
    schreibend.schließen();
    int zustand = 0;
    ungestört([&] { return ::waitpid(kind, &zustand, 0); });
    // Ends at once: the new program's start closes the other end, a failure writes to it.
    int fehler = 0;
    if (ungestört([&] { return ::read(lesend.fd(), &fehler, sizeof fehler); }) == sizeof fehler)
        werfen(fehler, teile->front());
}

}  // namespace tonkartei
