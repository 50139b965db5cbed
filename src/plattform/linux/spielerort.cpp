#include "plattform/linux/spielerort.hpp"

#include <sys/stat.h>
#include <unistd.h>

#include <array>

#include "plattform/dateisystem.hpp"

namespace tonkartei {

Text Spieler_Pfad() {
    std::array<char, 4096> puffer{};
    const ssize_t länge = readlink("/proc/self/exe", puffer.data(), puffer.size());
    if (länge <= 0) return {};
    const Text ordner = Ordner_von(Text(puffer.data(), static_cast<std::size_t>(länge)));
    for (const char* ort : {"WinAmp.Exe", "../lib/tonkartei/WinAmp.Exe", "../libexec/tonkartei/WinAmp.Exe"}) {
        Text pfad = ordner + ort;
        struct stat daten {};
        if (stat(pfad.c_str(), &daten) == 0 && S_ISREG(daten.st_mode) && access(pfad.c_str(), X_OK) == 0) return pfad;
    }
    return {};
}

}  // namespace tonkartei
