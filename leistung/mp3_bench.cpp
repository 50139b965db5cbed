// Tags and times of a full collection, beside the bare system calls and beside a general tag library in its fast mode.
#include <fcntl.h>
#include <sys/stat.h>
#include <taglib/fileref.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "leistung/verhaeltnis.hpp"
#include "mp3/mp3_taghead.hpp"
#include "plattform/linux/dateisystem_linux.hpp"

using namespace tonkartei;
namespace fs = std::filesystem;

namespace {

constexpr int Anzahl = 5000;
constexpr std::size_t Framelänge = 417;   // 128 kbit/s at 44100
constexpr std::size_t Frames = 9500;      // some four minutes
constexpr std::size_t echte_Frames = 20;  // at either end; the middle is a hole that nobody has to read

std::string Frame_Folge() {
    std::string bytes;
    for (std::size_t i = 0; i < echte_Frames; ++i) {
        std::string frame(Framelänge, '\x55');
        bytes += frame.replace(0, 4, "\xFF\xFB\x90\x64");
    }
    return bytes;
}

// A tag of the newer kind as a ripping program leaves it: a few text frames and room to grow.
std::string ID3v2_Block(const std::string& zahl) {
    constexpr std::size_t Länge = 2048;
    std::string frames;
    const auto frame = [&](const char* name, const std::string& text) {
        frames += name;
        frames += std::string{0, 0, 0, static_cast<char>(text.size() + 1), 0, 0, 0} + text;
    };
    frame("TIT2", "Titel " + zahl);
    frame("TPE1", "Artist " + zahl);
    frame("TALB", "Album");
    frame("TYER", "2001");
    frame("TRCK", "7/12");
    frame("TCON", "(17)Rock");
    frame("TENC", "Encoder");
    frame("COMM", std::string("deu\0Kommentar", 13));
    frames.resize(Länge, '\0');
    return std::string("ID3\x03\0\0\0\0\x10\0", 10) + frames;
}

std::string Feld_30(std::string text) {
    text.resize(30, '\0');
    return text;
}

class Sammlung {
public:
    Sammlung() : ordner_(fs::temp_directory_path() / ("tonkartei_bench_" + std::to_string(::getpid()))) {
        fs::create_directories(ordner_);
        const std::string ton = Frame_Folge();
        for (int nr = 1; nr <= Anzahl; ++nr) {
            const std::string zahl = std::to_string(nr);
            Pfade.push_back((ordner_ / (std::string(8 - zahl.size(), '0') + zahl + ".MP3")).string());
            std::ofstream datei(Pfade.back(), std::ios::binary);
            std::size_t davor = 0;
            if (nr % 2 == 0) {
                const std::string block = ID3v2_Block(zahl);
                davor = block.size();
                datei << block;
            }
            datei << ton;
            datei.seekp(static_cast<std::streamoff>(davor + (Frames - echte_Frames) * Framelänge));
            datei << ton << "TAG" << Feld_30("Titel " + zahl) << Feld_30("Artist " + zahl) << Feld_30("Album") << "2001"
                  << Feld_30("Kommentar") << '\x11';
        }
    }
    ~Sammlung() {
        std::error_code egal;
        fs::remove_all(ordner_, egal);
    }
    Sammlung(const Sammlung&) = delete;
    Sammlung& operator=(const Sammlung&) = delete;

    std::vector<std::string> Pfade;

private:
    fs::path ordner_;
};

// The least that can be asked of the system to see into a file: a piece of its start.
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
    Dateisystem_Linux dateien;
    MP3_TagHead mp3(dateien);
    if (durch_uns(mp3, sammlung.Pfade) == 0 || durch_uns(mp3, sammlung.Pfade) != durch_TagLib(sammlung.Pfade)) {
        std::fprintf(stderr, "Die beiden Leser sind sich nicht einig.\n");
        return 1;
    }
    const auto unser = [&] { return durch_uns(mp3, sammlung.Pfade); };
    Verhältnisse verhältnisse;
    verhältnisse.höchstens("Tags und Zeiten von 5000 Dateien", 1.5, "Systemaufrufe", unser,
                           [&] { return Systemaufrufe(sammlung.Pfade); });
    verhältnisse.mindestens("Tags und Zeiten von 5000 Dateien", 8, "so schnell wie TagLib", unser,
                            [&] { return durch_TagLib(sammlung.Pfade); });
    return verhältnisse.Ergebnis();
}
