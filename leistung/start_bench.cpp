// From the start of the real program, with 5000 songs to open, to its loop, against an empty Qt window: processes in turn.
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "leistung/speicher.hpp"
#include "leistung/verhaeltnis.hpp"

namespace {

// Runs a program until its loop runs, where the library that is loaded with it ends it.
int starten(const char* programm) {
    const pid_t kind = ::fork();
    if (kind == 0) {
        ::setenv("LD_PRELOAD", TONKARTEI_START_ENDE, 1);
        // Off the screen, Qt's tray misses a signal and says so each time.
        ::setenv("QT_LOGGING_RULES", "qt.core.qobject.connect=false", 1);
        ::execl(programm, programm, nullptr);
        ::_exit(127);
    }
    int status = 0;
    if (kind < 0 || ::waitpid(kind, &status, 0) != kind || status != 0) {
        std::fprintf(stderr, "%s kommt nicht in seine Schleife.\n", programm);
        std::exit(1);
    }
    return 1;
}

}  // namespace

int main() {
    using namespace tonkartei;
    const Speicherprobe probe;
    for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME", "XDG_RUNTIME_DIR"}) {
        const std::string ordner = probe.ordner.ordner(name);
        std::filesystem::permissions(ordner, std::filesystem::perms::owner_all);
        ::setenv(name, ordner.c_str(), 1);
    }
    const std::string einstellungen = probe.ordner.ordner("XDG_CONFIG_HOME/tonkartei") + "einstellungen.reg";
    std::filesystem::copy_file(probe.ordner.pfad("einstellungen.reg"), einstellungen);
    Verhältnisse v(21);
    v.Uhr = Prozessorzeit_der_Kinder;
    // The end comes without a closing, so the collection stays locked.
    v.davor = [&] { std::filesystem::remove(probe.ordner.pfad("MP3_Info.DBG")); };
    starten(TONKARTEI_PROGRAMM);
    if (!probe.ordner.da("MP3_Info.DBG")) {
        std::fprintf(stderr, "Das Programm hat die Sammlung nicht geöffnet.\n");
        return 1;
    }
    v.höchstens(
        "Start mit 5000 Liedern bis zur Schleife", 5, "Start eines leeren Qt-Fensters",
        [] { return starten(TONKARTEI_PROGRAMM); }, [] { return starten(TONKARTEI_LEERES_FENSTER); });
    return v.Ergebnis();
}
