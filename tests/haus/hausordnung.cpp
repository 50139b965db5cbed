#include "haus/hausordnung.hpp"

#include <algorithm>
#include <array>
#include <cctype>
#include <filesystem>
#include <functional>
#include <optional>
#include <set>
#include <sstream>
#include <string_view>

namespace tonkartei::haus {
namespace {

enum Fremdes : unsigned { nichts = 0, Qt = 1, POSIX = 2, mpv = 4 };

struct Raum {
    std::string_view Ordner;  // below src/; the longest that fits counts
    int Stockwerk;            // where it lies
    int Sicht;                // the highest floor that it may include
    unsigned Darf;            // what it may name that is not of the standard library
};

// The floors, from the ground up. Rooms of one floor may include each other, file by file without a loop. The rooms of
// one toolkit or one machine lie just below the roof, where only the composition reaches them, yet see the seams alone.
constexpr std::array Räume{
    Raum{"grundlagen", 0, 0, nichts},
    Raum{"plattform", 10, 10, nichts},
    Raum{"oberflaeche", 10, 10, nichts},
    Raum{"mp3", 20, 20, nichts},
    Raum{"datenbank", 21, 21, nichts},
    Raum{"alben", 30, 30, nichts},
    Raum{"kategorien", 31, 31, nichts},
    Raum{"liste", 32, 32, nichts},
    Raum{"wiedergabe", 33, 33, nichts},
    Raum{"wiedergabe/winamp", 33, 33, nichts},
    Raum{"wiedergabe/zufall", 33, 33, nichts},
    Raum{"playlist", 34, 34, nichts},
    Raum{"lieder", 35, 35, nichts},
    Raum{"lieder/hinzufuegen", 35, 35, nichts},
    Raum{"lieder/wartung", 35, 35, nichts},
    Raum{"albenverwaltung", 40, 40, nichts},
    Raum{"austausch", 40, 40, nichts},
    Raum{"austausch/sicherung", 40, 40, nichts},
    Raum{"austausch/vergleich", 40, 40, nichts},
    Raum{"austausch/abgleich", 40, 40, nichts},
    Raum{"austausch/aufloesung", 40, 40, nichts},
    Raum{"statistik", 40, 40, nichts},
    Raum{"ausgabe", 40, 40, nichts},
    Raum{"display", 40, 40, nichts},
    Raum{"dj", 40, 40, nichts},
    Raum{"dj/alt", 40, 40, nichts},
    Raum{"oberflaeche/qt", 50, 10, Qt},
    Raum{"plattform/linux", 50, 10, POSIX},
    Raum{"programm", 60, 60, nichts},
    Raum{"spieler", 70, 10, POSIX | mpv},
};

// Includes beyond a room's sight that are meant: from (a folder or a file) into (a folder).
struct Tür {
    std::string_view Von;
    std::string_view Nach;
};
constexpr std::array Türen{
    Tür{"programm/main.cpp", "oberflaeche/qt"},
    Tür{"programm/main.cpp", "plattform/linux"},
    // Both ends of the wire that stands for window messages.
    Tür{"spieler", "plattform/linux"},
};
// Behind these doors nobody gets otherwise, not even from above.
constexpr std::array<std::string_view, 2> Verschlossen{"oberflaeche/qt", "plattform/linux"};

bool liegt_in(std::string_view pfad, std::string_view ordner) {
    return pfad.starts_with(ordner) && (pfad.size() == ordner.size() || pfad[ordner.size()] == '/');
}

const Raum* Raum_von(std::string_view pfad) {
    const Raum* bester = nullptr;
    for (const Raum& raum : Räume)
        if (liegt_in(pfad, raum.Ordner) && (!bester || raum.Ordner.size() > bester->Ordner.size())) bester = &raum;
    return bester;
}

bool hat_Tür(std::string_view von, std::string_view nach) {
    return std::any_of(Türen.begin(), Türen.end(),
                       [&](const Tür& tür) { return liegt_in(von, tür.Von) && tür.Nach == nach; });
}

bool ist_Einschluss(std::string_view zeile) {
    const std::size_t raute = std::min(zeile.find_first_not_of(" \t"), zeile.size());
    const std::size_t wort = std::min(zeile.find_first_not_of(" \t", raute + 1), zeile.size());
    return zeile.substr(raute).starts_with('#') && zeile.substr(wort).starts_with("include");
}

// Beside the including file first, then below the include folders, as the compiler looks.
std::optional<std::string> Ziel(const Quellen& quellen, const std::string& von, const std::string& pfad) {
    const std::string beide[] = {von.substr(0, von.rfind('/') + 1) + pfad, "src/" + pfad, "werkzeug/" + pfad,
                                 "tests/" + pfad, "leistung/" + pfad};
    for (const std::filesystem::path versuch : beide)
        if (const std::string ziel = versuch.lexically_normal().generic_string(); quellen.contains(ziel)) return ziel;
    return std::nullopt;
}

// A header in angle brackets: of Qt, of libmpv, or of the machine when it is not one of the C++ library, whose names have
// neither dot nor slash. Other libraries count as the machine's: nobody but the rooms for such things may use one.
Fremdes Herkunft(const std::string& kopf) {
    if (kopf.starts_with("mpv/")) return mpv;
    if (kopf.size() > 1 && kopf[0] == 'Q' && (std::isupper(static_cast<unsigned char>(kopf[1])) || kopf[1] == 't'))
        return Qt;
    if (kopf.starts_with("q") && kopf.ends_with(".h")) return Qt;
    return kopf.find_first_of("./") == std::string::npos ? nichts : POSIX;
}

const char* Name(Fremdes fremdes) { return fremdes == Qt ? "Qt" : fremdes == mpv ? "libmpv" : "the machine (POSIX)"; }

// Calls that headers of the standard library bring along or that need no header at all.
constexpr std::array<std::string_view, 30> Aufrufe{
    "localtime_r", "gmtime_r",    "timegm", "setenv",    "unsetenv", "mkstemp", "mkdtemp",   "realpath",  "popen", "pclose",
    "fileno",      "fdopen",      "fsync",  "usleep",    "getpid",   "getuid",  "fdatasync", "ftruncate", "execv", "execvp",
    "strcasecmp",  "strncasecmp", "dlopen", "nanosleep", "fork",     "lstat",   "fstat",     "sigaction", "mmap",  "ioctl"};
// Asking for the machine is a way of naming it.
constexpr std::array<std::string_view, 6> Schalter{"__linux__", "__unix__",        "__APPLE__",
                                                   "_WIN32",    "_POSIX_C_SOURCE", "_GNU_SOURCE"};

bool im_Wort(char zeichen) {
    const auto byte = static_cast<unsigned char>(zeichen);
    return std::isalnum(byte) || zeichen == '_' || byte >= 0x80;
}

Fremdes Herkunft_des_Wortes(std::string_view wort, bool ist_Aufruf) {
    const auto steht_in = [&](const auto& wörter) { return std::find(wörter.begin(), wörter.end(), wort) != wörter.end(); };
    if (wort.size() > 2 && wort[0] == 'Q' && (wort[1] == '_' || std::isupper(static_cast<unsigned char>(wort[1]))))
        return Qt;
    if (wort.starts_with("mpv_")) return mpv;
    if (steht_in(Schalter)) return POSIX;
    if (ist_Aufruf && (steht_in(Aufrufe) || wort.starts_with("posix_") || wort.starts_with("pthread_"))) return POSIX;
    return nichts;
}

using Meldung = std::function<void(const std::string& grund)>;

void prüfe_Wörter(std::string_view zeile, unsigned darf, const Meldung& melde) {
    for (std::size_t i = 0, ende = 0; i < zeile.size(); i = ende + 1) {
        for (ende = i; ende < zeile.size() && im_Wort(zeile[ende]);) ++ende;
        const std::size_t danach = zeile.find_first_not_of(' ', ende);
        const std::string_view wort = zeile.substr(i, ende - i);
        const Fremdes fremdes = Herkunft_des_Wortes(wort, danach != zeile.npos && zeile[danach] == '(');
        if (fremdes != nichts && !(darf & fremdes)) melde(std::string("names ") + Name(fremdes) + ": " + std::string(wort));
    }
}

void prüfe_Einschluss(std::string_view von, const Raum& raum, const std::string& pfad, bool spitz,
                      const std::optional<std::string>& ziel, const Meldung& melde) {
    if (!ziel) {
        const bool erzeugt = pfad.ends_with(".moc");
        const bool eigen = !spitz && pfad.ends_with(".hpp");
        const Fremdes fremdes = erzeugt ? Qt : eigen ? nichts : Herkunft(pfad);
        if (fremdes != nichts && !(raum.Darf & fremdes))
            melde(std::string("names ") + Name(fremdes));
        else if (!spitz && !erzeugt)
            melde("no such file in the project");
        return;
    }
    if (spitz) return melde("own files are included in quotes");
    if (!ziel->starts_with("src/")) return melde("leaves src/");
    const Raum* nach = Raum_von(std::string_view(*ziel).substr(4));
    if (!nach || nach == &raum || hat_Tür(von, nach->Ordner)) return;
    if (std::find(Verschlossen.begin(), Verschlossen.end(), nach->Ordner) != Verschlossen.end())
        return melde("only the composition may know " + std::string(nach->Ordner) + "/");
    if (nach->Stockwerk > raum.Sicht) melde("points up a floor");
}

// Depth first; each loop is reported once, at the file that closes it.
void suche_Schleifen(const std::map<std::string, std::vector<std::string>>& kanten, std::vector<Verstoß>& verstöße) {
    std::vector<std::string> weg;
    std::set<std::string> fertig;
    const std::function<void(const std::string&)> besuche = [&](const std::string& datei) {
        const auto nach = kanten.find(datei);
        if (nach == kanten.end() || fertig.contains(datei)) return;
        weg.push_back(datei);
        for (const std::string& ziel : nach->second) {
            auto station = std::find(weg.begin(), weg.end(), ziel);
            if (station == weg.end()) {
                besuche(ziel);
                continue;
            }
            std::string runde;
            for (; station != weg.end(); ++station) runde += *station + " > ";
            verstöße.push_back({datei, 0, "include loop: " + runde + ziel});
        }
        weg.pop_back();
        fertig.insert(datei);
    };
    for (const auto& [datei, _] : kanten) besuche(datei);
}

// Comments and the contents of strings and character literals as blanks, line breaks kept; include paths stay.
std::string nur_Code(const std::string& text) {
    std::string code = text;
    const auto hinter = [&](std::string_view schluss, std::size_t ab) {
        const std::size_t stelle = text.find(schluss, ab);
        return stelle == std::string::npos ? text.size() : stelle + schluss.size();
    };
    for (std::size_t i = 0; i < text.size();) {
        const std::size_t anfang = i;
        const char zeichen = text[i];
        if (zeichen == '#' && ist_Einschluss(std::string_view(text).substr(i, 20))) {
            i = hinter("\n", i);
            continue;
        }
        if (text.compare(i, 2, "//") == 0) {
            i = std::min(text.find('\n', i), text.size());
        } else if (text.compare(i, 2, "/*") == 0) {
            i = hinter("*/", i + 2);
        } else if (text.compare(i, 2, "R\"") == 0) {
            const std::size_t klammer = std::min(text.find('(', i), text.size());
            i = hinter(")" + text.substr(i + 2, klammer - i - 2) + "\"", klammer);
        } else if (zeichen == '"' || (zeichen == '\'' && !(i > 0 && im_Wort(text[i - 1])))) {
            for (++i; i < text.size() && text[i] != zeichen && text[i] != '\n'; ++i) i += text[i] == '\\';
            ++i;
        } else {
            ++i;
            continue;
        }
        for (std::size_t j = anfang; j < std::min(i, text.size()); ++j)
            if (code[j] != '\n') code[j] = ' ';
    }
    return code;
}

}  // namespace

std::vector<Verstoß> prüfe(const Quellen& quellen) {
    std::vector<Verstoß> verstöße;
    std::map<std::string, std::vector<std::string>> kanten;
    for (const auto& [datei, text] : quellen) {
        // Tests and benchmarks may look everywhere; only loops are looked for there.
        const bool geprüft = datei.starts_with("src/");
        const std::string_view von = std::string_view(datei).substr(geprüft ? 4 : 0);
        const Raum* raum = geprüft ? Raum_von(von) : nullptr;
        if (geprüft && !raum) verstöße.push_back({datei, 0, "its folder has no floor in the table"});
        std::istringstream strom(nur_Code(text));
        std::string zeile;
        for (int nummer = 1; std::getline(strom, zeile); ++nummer) {
            const Meldung melde = [&, &name = datei](const std::string& grund) {
                verstöße.push_back({name, nummer, grund});
            };
            const std::size_t anfang = zeile.find_first_of("<\"");
            if (!ist_Einschluss(zeile) || anfang == std::string::npos) {
                if (raum) prüfe_Wörter(zeile, raum->Darf, melde);
                continue;
            }
            const bool spitz = zeile[anfang] == '<';
            const std::string pfad = zeile.substr(anfang + 1, zeile.find(spitz ? '>' : '"', anfang + 1) - anfang - 1);
            const std::optional<std::string> ziel = Ziel(quellen, datei, pfad);
            if (ziel) kanten[datei].push_back(*ziel);
            if (raum) prüfe_Einschluss(von, *raum, pfad, spitz, ziel, melde);
        }
    }
    suche_Schleifen(kanten, verstöße);
    return verstöße;
}

}  // namespace tonkartei::haus
