// Tags and times of a full collection, beside the bare system calls, and for comparison beside a general tag library in its
// fast mode.
#include <fcntl.h>
#include <sys/stat.h>
#include <taglib/fileref.h>
#include <unistd.h>

#include <array>
#include <string>
#include <vector>

#include "echt.hpp"
#include "leistung/sammlung.hpp"
#include "leistung/verhaeltnis.hpp"
#include "mp3/mp3_taghead.hpp"

using namespace tonkartei;

namespace {

// The least that can be asked of the system to see into a file, a piece of its start: four calls.
std::size_t Systemaufrufe(const std::vector<std::string>& pfade) {
    std::size_t summe = 0;
    std::array<char, 4096> anfang;
    for (const std::string& pfad : pfade) {
        const int fd = ::open(pfad.c_str(), O_RDONLY | O_CLOEXEC);
        struct stat datei {};
        if (fd < 0 || ::fstat(fd, &datei) != 0 || ::pread(fd, anfang.data(), anfang.size(), 0) < 0) return 0;
        ::close(fd);
        summe += static_cast<std::size_t>(datei.st_size) + static_cast<unsigned char>(anfang[1]);
    }
    return summe;
}

std::size_t durch_uns(MP3_TagHead& mp3, const std::vector<std::string>& pfade) {
    std::size_t summe = 0;
    for (const std::string& pfad : pfade) {
        const Lied_Daten daten = mp3.Lied_Daten_lesen(pfad);
        summe += daten.Titel.size() + daten.Artist.size() + static_cast<std::size_t>(Sekunden_von(daten.Zeit));
    }
    return summe;
}

std::size_t durch_TagLib(const std::vector<std::string>& pfade) {
    std::size_t summe = 0;
    for (const std::string& pfad : pfade) {
        const TagLib::FileRef datei(pfad.c_str(), true, TagLib::AudioProperties::Fast);
        if (datei.isNull()) return 0;
        summe += datei.tag()->title().size() + datei.tag()->artist().size() +
                 static_cast<std::size_t>(datei.audioProperties()->lengthInSeconds());
    }
    return summe;
}

}  // namespace

int main() {
    const Sammlung sammlung;
    Dateisystem_echt dateien;
    MP3_TagHead mp3(dateien);
    if (durch_uns(mp3, sammlung.Pfade) == 0 || durch_uns(mp3, sammlung.Pfade) != durch_TagLib(sammlung.Pfade)) {
        std::fprintf(stderr, "Die beiden Leser sind sich nicht einig.\n");
        return 1;
    }
    const auto unser = [&] { return durch_uns(mp3, sammlung.Pfade); };
    Verhältnisse verhältnisse(31);
    verhältnisse.höchstens("Tags und Zeiten von 5000 Dateien", 1.5, "die vier Systemaufrufe", unser,
                           [&] { return Systemaufrufe(sammlung.Pfade); });
    verhältnisse.zum_Vergleich(
        "dasselbe durch TagLib", "unser Weg", [&] { return durch_TagLib(sammlung.Pfade); }, unser);
    return verhältnisse.Ergebnis();
}
