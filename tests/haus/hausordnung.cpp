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

enum Fremdes : unsigned { nichts = 0, Qt = 1, Maschine = 2, mpv = 4, mpg123 = 8 };

struct Stock {
    int Höhe;
    int Sicht;               // the highest floor that its rooms may include
    unsigned Darf;           // what they may name that is not of the standard library
    std::string_view Räume;  // folders below src/, each between blanks; a folder within one is a room of its own
};

// The floors, from the ground up. Rooms of one floor may include each other, file by file without a loop. The rooms of
// one toolkit or one machine lie just below the roof, where only the composition reaches them, yet see the seams alone.
constexpr int Anbau = 50;
constexpr std::array Stockwerke{
    Stock{0, 0, nichts, " grundlagen "},
    Stock{10, 10, nichts, " plattform oberflaeche "},
    Stock{20, 20, nichts, " mp3 "},
    Stock{21, 21, nichts, " datenbank "},
    Stock{30, 30, nichts, " alben "},
    Stock{31, 31, nichts, " kategorien "},
    Stock{32, 32, nichts, " liste "},
    Stock{33, 33, nichts, " wiedergabe wiedergabe/winamp wiedergabe/zufall "},
    Stock{34, 34, nichts, " playlist "},
    Stock{35, 35, nichts, " lieder lieder/hinzufuegen lieder/wartung "},
    Stock{40, 40, nichts,
          " albenverwaltung austausch austausch/sicherung austausch/vergleich austausch/abgleich austausch/aufloesung "
          "statistik ausgabe display dj dj/alt "},
    Stock{Anbau, 10, Qt, " oberflaeche/qt oberflaeche/qt/freedesktop oberflaeche/qt/windows "},
    Stock{Anbau, 10, Maschine, " plattform/linux "},
    Stock{Anbau, 10, Maschine, " plattform/windows "},
    Stock{60, 60, nichts, " programm "},
    Stock{70, 10, nichts, " spieler "},
    Stock{70, 10, Maschine, " spieler/linux spieler/mpris "},
    Stock{70, 10, Maschine, " spieler/windows "},
    Stock{70, 10, Maschine | mpg123, " spieler/mpg123 "},
    Stock{70, 10, Maschine | mpv, " spieler/mpv "},
};

// Nobody else may know an annex, but through a door: from (a folder or a file) into (a folder).
struct Tür {
    std::string_view Von;
    std::string_view Nach;
};
// The player has both ends of the wire that stands for window messages, and a window and a sound of each machine's own.
constexpr std::array Türen{Tür{"programm/main.cpp", "oberflaeche/qt"},
                           Tür{"programm/main.cpp", "oberflaeche/qt/freedesktop"},
                           Tür{"oberflaeche/qt/windows/", "oberflaeche/qt"},
                           Tür{"oberflaeche/qt/freedesktop/", "oberflaeche/qt"},
                           Tür{"programm/main.cpp", "plattform/linux"},
                           Tür{"spieler/main.cpp", "plattform/linux"},
                           Tür{"spieler/linux/", "plattform/linux"},
                           Tür{"spieler/mpv/", "plattform/linux"},
                           Tür{"spieler/windows/", "plattform/windows"},
                           Tür{"spieler/mpg123/", "plattform/windows"},
                           Tür{"spieler/linux/", "spieler"},
                           Tür{"spieler/mpris/", "spieler"},
                           Tür{"spieler/windows/", "spieler"},
                           Tür{"spieler/mpv/", "spieler"},
                           Tür{"spieler/mpg123/", "spieler"},
                           Tür{"spieler/linux/", "spieler/mpv"},
                           Tür{"spieler/linux/", "spieler/mpris"},
                           Tür{"spieler/windows/", "spieler/mpg123"}};

bool steht_in(std::string_view liste, std::string_view wort) {
    return liste.find(" " + std::string(wort) + " ") != std::string_view::npos;
}

std::string_view Ordner(std::string_view pfad) { return pfad.substr(0, pfad.rfind('/')); }

const Stock* Stock_von(std::string_view pfad) {
    for (const Stock& stock : Stockwerke)
        if (steht_in(stock.Räume, Ordner(pfad))) return &stock;
    return nullptr;
}

bool ist_Einschluss(std::string_view zeile) {
    const auto Rest = [](std::string_view text) {
        return text.substr(std::min(text.find_first_not_of(" \t"), text.size()));
    };
    zeile = Rest(zeile);
    return zeile.starts_with('#') && Rest(zeile.substr(1)).starts_with("include");
}

// Beside the including file first, then below the include folders, as the compiler looks. What has no folder is the header
// of the machine that is built for; all machines' look alike.
std::optional<std::string> Ziel(const Quellen& quellen, const std::string& von, const std::string& pfad) {
    const std::string beide[] = {von.substr(0, von.rfind('/') + 1) + pfad,
                                 "src/" + pfad,
                                 "werkzeug/" + pfad,
                                 "tests/" + pfad,
                                 "leistung/" + pfad,
                                 "src/plattform/linux/" + pfad,
                                 "src/oberflaeche/qt/freedesktop/" + pfad};
    for (const std::filesystem::path versuch : beide)
        if (const std::string ziel = versuch.lexically_normal().generic_string(); quellen.contains(ziel)) return ziel;
    return std::nullopt;
}

// A header in angle brackets: of Qt, of libmpv, of mpg123, or of the machine when it is not one of the C++ library, whose
// names have neither dot nor slash. Other libraries count as the machine's: nobody but the rooms for such things may use
// one.
Fremdes Herkunft(const std::string& kopf) {
    if (kopf.starts_with("mpv/")) return mpv;
    if (kopf == "mpg123.h") return mpg123;
    if (kopf.size() > 1 && kopf[0] == 'Q' && (std::isupper(static_cast<unsigned char>(kopf[1])) || kopf[1] == 't'))
        return Qt;
    if (kopf.starts_with("q") && kopf.ends_with(".h")) return Qt;
    return kopf.find_first_of("./") == std::string::npos ? nichts : Maschine;
}

const char* Name(Fremdes fremdes) {
    return fremdes == Qt ? "Qt" : fremdes == mpv ? "libmpv" : fremdes == mpg123 ? "mpg123" : "the machine";
}

// Calls that headers of the standard library bring along or that need no header at all.
constexpr std::string_view Aufrufe =
    " localtime_r gmtime_r timegm setenv unsetenv mkstemp mkdtemp realpath popen pclose fileno fdopen fsync usleep getpid "
    "getuid "
    "fdatasync ftruncate execv execvp strcasecmp strncasecmp dlopen nanosleep fork lstat fstat sigaction mmap ioctl ";
// Asking for the machine is a way of naming it.
constexpr std::string_view Schalter = " __linux__ __unix__ __APPLE__ _WIN32 _WIN64 _POSIX_C_SOURCE _GNU_SOURCE ";

bool im_Wort(char zeichen) {
    const auto byte = static_cast<unsigned char>(zeichen);
    return std::isalnum(byte) || zeichen == '_' || byte >= 0x80;
}

Fremdes Herkunft_des_Wortes(std::string_view wort, bool ist_Aufruf) {
    // One word of the machine's looks like Qt's: what a queue of messages can hold.
    if (wort.starts_with("QS_")) return Maschine;
    if (wort.size() > 2 && wort[0] == 'Q' && (wort[1] == '_' || std::isupper(static_cast<unsigned char>(wort[1]))))
        return Qt;
    if (wort.starts_with("mpv_")) return mpv;
    if (wort.starts_with("mpg123_")) return mpg123;
    if (steht_in(Schalter, wort)) return Maschine;
    if (ist_Aufruf && (steht_in(Aufrufe, wort) || wort.starts_with("posix_") || wort.starts_with("pthread_")))
        return Maschine;
    return nichts;
}

using Meldung = std::function<void(const std::string& grund)>;

void prüfe_Wörter(std::string_view zeile, unsigned darf, const Meldung& melde) {
    for (const std::string_view wort : Wörter(zeile)) {
        const auto ende = static_cast<std::size_t>(wort.data() - zeile.data()) + wort.size();
        const std::size_t danach = zeile.find_first_not_of(' ', ende);
        const Fremdes fremdes = Herkunft_des_Wortes(wort, danach != zeile.npos && zeile[danach] == '(');
        if (fremdes != nichts && !(darf & fremdes)) melde(std::string("names ") + Name(fremdes) + ": " + std::string(wort));
    }
}

void prüfe_Einschluss(std::string_view von, const Stock& stock, const std::string& pfad, bool spitz,
                      const std::optional<std::string>& ziel, const Meldung& melde) {
    if (!ziel) {
        const Fremdes fremdes = !spitz && pfad.ends_with(".hpp") ? nichts : Herkunft(pfad);
        if (fremdes != nichts && !(stock.Darf & fremdes)) return melde(std::string("names ") + Name(fremdes));
        return spitz ? void() : melde("no such file in the project");
    }
    if (spitz) return melde("own files are included in quotes");
    if (!ziel->starts_with("src/")) return melde("leaves src/");
    const std::string_view wohin = std::string_view(*ziel).substr(4);
    const Stock* nach = Stock_von(wohin);
    for (const Tür& tür : Türen)
        if (von.starts_with(tür.Von) && tür.Nach == Ordner(wohin)) return;
    if (!nach || nach == &stock) return;
    if (nach->Höhe == Anbau) return melde("only the composition may know " + std::string(Ordner(wohin)));
    if (nach->Höhe > stock.Sicht) melde("points up a floor");
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

}  // namespace

std::vector<std::string_view> Wörter(std::string_view zeile) {
    std::vector<std::string_view> wörter;
    for (std::size_t i = 0, ende = 0; i < zeile.size(); i = ende + 1) {
        for (ende = i; ende < zeile.size() && im_Wort(zeile[ende]);) ++ende;
        if (ende > i) wörter.push_back(zeile.substr(i, ende - i));
    }
    return wörter;
}

std::string nur_Code(const std::string& text) {
    std::string code = text;
    const auto hinter = [&](std::string_view schluss, std::size_t ab) {
        const std::size_t stelle = text.find(schluss, ab);
        return stelle == std::string::npos ? text.size() : stelle + schluss.size();
    };
    for (std::size_t i = 0; i < text.size();) {
        const std::size_t anfang = i;
        const char zeichen = text[i];
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
            i = zeichen == '#' && ist_Einschluss(std::string_view(text).substr(i, 20)) ? hinter("\n", i) : i + 1;
            continue;
        }
        for (std::size_t j = anfang; j < std::min(i, text.size()); ++j)
            if (code[j] != '\n') code[j] = ' ';
    }
    return code;
}

std::vector<Verstoß> prüfe(const Quellen& quellen) {
    std::vector<Verstoß> verstöße;
    std::map<std::string, std::vector<std::string>> kanten;
    for (const auto& [datei, text] : quellen) {
        // Tests and benchmarks may look everywhere; only loops are looked for there.
        const bool geprüft = datei.starts_with("src/");
        const std::string_view von = std::string_view(datei).substr(geprüft ? 4 : 0);
        const Stock* stock = geprüft ? Stock_von(von) : nullptr;
        if (geprüft && !stock) verstöße.push_back({datei, 0, "its folder has no floor in the table"});
        std::istringstream strom(nur_Code(text));
        std::string zeile;
        for (int nummer = 1; std::getline(strom, zeile); ++nummer) {
            const Meldung melde = [&, &name = datei](const std::string& grund) {
                verstöße.push_back({name, nummer, grund});
            };
            const std::size_t anfang = zeile.find_first_of("<\"");
            if (!ist_Einschluss(zeile) || anfang == std::string::npos) {
                if (stock) prüfe_Wörter(zeile, stock->Darf, melde);
                continue;
            }
            const bool spitz = zeile[anfang] == '<';
            const std::string pfad = zeile.substr(anfang + 1, zeile.find(spitz ? '>' : '"', anfang + 1) - anfang - 1);
            const std::optional<std::string> ziel = Ziel(quellen, datei, pfad);
            if (ziel) kanten[datei].push_back(*ziel);
            if (stock) prüfe_Einschluss(von, *stock, pfad, spitz, ziel, melde);
        }
    }
    suche_Schleifen(kanten, verstöße);
    prüfe_Maße(quellen, verstöße);
    return verstöße;
}

}  // namespace tonkartei::haus
