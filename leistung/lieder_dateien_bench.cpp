// Adding and re-reading songs, beside the bare system calls for the same files.
#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "echt.hpp"
#include "leistung/sammlung.hpp"
#include "leistung/verhaeltnis.hpp"
#include "lieder/hinzufuegen/dateien_uebernehmen.hpp"
#include "lieder/wartung/neueinlesen.hpp"
#include "probe/stumme_ansicht.hpp"

using namespace tonkartei;
namespace fs = std::filesystem;

namespace {

struct Kein_Korb : Papierkorb {
    void wegwerfen(const Text& pfad) override { throw Dateifehler(70, pfad); }
};

// A thousand new files, smaller than songs are, and the folder that they go to: a new one each time, since some file systems
// are slow at making files where many have just been deleted.
class Zugang {
public:
    static constexpr int Anzahl = 1000;
    static constexpr std::size_t Länge = 512U << 10U;

    explicit Zugang(std::string ordner) : ordner_(std::move(ordner)) {
        fs::create_directories(ordner_ + "neu");
        const std::string bytes(Länge, 'x');
        for (int n = 1; n <= Anzahl; ++n) {
            quellen_.push_back(ordner_ + "neu/Some Band - Song no. " + std::to_string(n) + ".mp3");
            std::ofstream(quellen_.back(), std::ios::binary) << bytes;
            auftrag_.Lieder.push_back({quellen_.back(), 0});
        }
    }

    void neuer_Ordner() {
        modell_.Datenbank_Verzeichnis = ordner_ + "db" + std::to_string(++ordner_Nr_) + "/";
        fs::create_directories(modell_.Datenbank_Verzeichnis);
    }
    int durch_uns() { return übernehmen_.ausführen(auftrag_); }
    int von_Hand() const {
        int nummer = 0;
        for (const std::string& quelle : quellen_) {
            const int aus = ::open(quelle.c_str(), O_RDONLY | O_CLOEXEC);
            struct stat datei {};
            if (aus < 0 || ::fstat(aus, &datei) != 0) return 0;
            const std::string ziel = modell_.Lied_Pfad(++nummer);
            const int in = ::open(ziel.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
            if (in < 0) return 0;
            if (::ioctl(in, FICLONE, aus) != 0)
                for (auto rest = datei.st_size; rest > 0;) {
                    const auto teil = ::copy_file_range(aus, nullptr, in, nullptr, static_cast<std::size_t>(rest), 0);
                    if (teil <= 0) return 0;
                    rest -= teil;
                }
            const struct timespec zeiten[2] = {datei.st_atim, datei.st_mtim};
            if (::futimens(in, zeiten) != 0) return 0;
            ::close(in);
            ::close(aus);
        }
        return nummer;
    }

private:
    std::string ordner_;
    int ordner_Nr_ = 0;
    std::vector<std::string> quellen_;
    Übernahme_Auftrag auftrag_;
    Stumme_Ansicht ansicht_;
    Dateisystem_echt dateien_;
    Registrierung_echt registrierung_{ordner_ + "einstellungen.reg"};
    Fenstersystem_echt fenster_;
    Kein_Korb korb_;
    Shell_echt shell_{dateien_, korb_};
    Rechner_echt rechner_{ordner_};
    Haus haus_{{dateien_, registrierung_, fenster_, shell_, rechner_}, ansicht_};
    Modell& modell_ = haus_.modell;
    MP3_TagHead mp3_{dateien_};
    WinAmp_Steuerung spieler_{fenster_};
    Dateien_übernehmen übernehmen_{haus_, mp3_, spieler_};
};

// What a tag and a time need: the end of the file and a piece of its start.
long Systemaufrufe(const std::vector<std::string>& pfade) {
    long summe = 0;
    std::array<char, 128> block;
    std::array<char, 2560> anfang;
    for (const std::string& pfad : pfade) {
        const int fd = ::open(pfad.c_str(), O_RDONLY | O_CLOEXEC);
        struct stat datei {};
        if (fd < 0 || ::fstat(fd, &datei) != 0) return 0;
        if (::pread(fd, block.data(), block.size(), datei.st_size - 128) != 128) return 0;
        if (::pread(fd, anfang.data(), anfang.size(), 0) <= 0) return 0;
        ::close(fd);
        summe += block[3] + anfang[3];
    }
    return summe;
}

}  // namespace

int main() {
    const Sammlung sammlung;
    Zugang zugang(sammlung.Ordner());
    Verhältnisse beim_Hinzufügen(3);
    beim_Hinzufügen.davor = [&] { zugang.neuer_Ordner(); };
    beim_Hinzufügen.höchstens(
        "Hinzufügen von 1000 Dateien", 1.25, "Kopieren mit Systemaufrufen", [&] { return zugang.durch_uns(); },
        [&] { return zugang.von_Hand(); });

    Modell modell;
    modell.Datenbank_Verzeichnis = sammlung.Ordner();
    modell.Anzahl_Lieder = Sammlung::Anzahl;
    Dateisystem_echt dateien;
    MP3_TagHead mp3(dateien);
    Stumme_Ansicht ansicht;
    Fortschritts_Fenster fortschritt(ansicht);
    Neueinlesen einlesen(modell, mp3, fortschritt);
    Verhältnisse beim_Einlesen(31);
    beim_Einlesen.höchstens(
        "Einlesen von 5000 Liedern", 1.5, "die fünf Systemaufrufe dafür",
        [&] {
            einlesen.alle_Lieder_einlesen();
            return modell.Lieder[Sammlung::Anzahl].Größe;
        },
        [&] { return Systemaufrufe(sammlung.Pfade); });
    return std::max(beim_Hinzufügen.Ergebnis(), beim_Einlesen.Ergebnis());
}
