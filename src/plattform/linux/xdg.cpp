#include "plattform/linux/xdg.hpp"

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <vector>

#include "plattform/dateisystem.hpp"

namespace tonkartei {
namespace {

Text absoluter_Wert(const char* name) {
    const char* wert = std::getenv(name);
    return wert != nullptr && ist_absolut(wert) ? mit_Trenner(wert) : Text();
}

Text Wert_oder(const char* name, const char* unter_Heim) {
    Text wert = absoluter_Wert(name);
    return wert.empty() ? Heimordner() + unter_Heim : wert;
}

// Ours, a real folder, and closed to others.
bool privat(const Text& ordner) {
    struct stat da {};
    if (::mkdir(ordner.c_str(), 0700) != 0 && errno != EEXIST) return false;
    if (::lstat(ordner.c_str(), &da) != 0 || !S_ISDIR(da.st_mode) || da.st_uid != ::geteuid()) return false;
    return (da.st_mode & 0777) == 0700 || ::chmod(ordner.c_str(), 0700) == 0;
}

}  // namespace

Text Heimordner() {
    Text heim = absoluter_Wert("HOME");
    if (!heim.empty()) return heim;
    std::vector<char> puffer(16384);
    passwd eintrag{};
    passwd* treffer = nullptr;
    if (::getpwuid_r(::geteuid(), &eintrag, puffer.data(), puffer.size(), &treffer) == 0 && treffer != nullptr)
        return mit_Trenner(treffer->pw_dir);
    return Text(1, Trenner);
}

Text Einstellungsordner() { return Wert_oder("XDG_CONFIG_HOME", ".config/") + "tonkartei/"; }
Text Datenwurzel() { return Wert_oder("XDG_DATA_HOME", ".local/share/"); }
Text Datenordner() { return Datenwurzel() + "tonkartei/"; }

Text Laufzeitordner() {
    if (const Text wurzel = absoluter_Wert("XDG_RUNTIME_DIR"); !wurzel.empty())
        if (const Text ordner = wurzel + "tonkartei"; privat(ordner)) return ordner + Trenner;
    Text temp = absoluter_Wert("TMPDIR");
    if (temp.empty()) temp = "/tmp/";
    const Text ordner = temp + "tonkartei-" + std::to_string(::geteuid());
    return privat(ordner) ? ordner + Trenner : "/dev/null/";
}

}  // namespace tonkartei
