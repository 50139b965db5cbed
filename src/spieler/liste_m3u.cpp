#include "spieler/liste_m3u.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>

#include "plattform/linux/deskriptor.hpp"

namespace tonkartei::spieler {

namespace {

constexpr std::size_t Höchstlänge_Liste = std::size_t{16} << 20;

bool endet_auf(std::string_view pfad, std::string_view endung) {
    if (pfad.size() < endung.size()) return false;
    return std::ranges::equal(pfad.substr(pfad.size() - endung.size()), endung,
                              [](char a, char b) { return (a >= 'A' && a <= 'Z' ? a + 32 : a) == b; });
}

std::string Inhalt(const Text& pfad) {
    // Non-blocking, since a pipe by that name would let the opening wait for ever.
    const Deskriptor datei(::open(pfad.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    struct stat st;
    if (!datei || ::fstat(datei.fd(), &st) != 0 || !S_ISREG(st.st_mode)) return {};
    std::string inhalt;
    char puffer[65536];
    while (inhalt.size() < Höchstlänge_Liste) {
        const ssize_t n = ::read(datei.fd(), puffer, sizeof(puffer));
        if (n <= 0) break;
        inhalt.append(puffer, static_cast<std::size_t>(n));
    }
    return inhalt;
}

}  // namespace

bool ist_Liste(const Text& pfad) { return endet_auf(pfad, ".m3u") || endet_auf(pfad, ".m3u8"); }

std::vector<Text> lies_Liste(std::string_view inhalt, const Text& ordner) {
    constexpr std::string_view Marke = "\xEF\xBB\xBF";  // put in front of lists in UTF-8 by some editors
    if (inhalt.starts_with(Marke)) inhalt.remove_prefix(Marke.size());
    std::vector<Text> ergebnis;
    while (!inhalt.empty()) {
        const std::size_t ende = inhalt.find('\n');
        std::string_view zeile = inhalt.substr(0, ende);
        inhalt.remove_prefix(ende == std::string_view::npos ? inhalt.size() : ende + 1);
        if (zeile.ends_with('\r')) zeile.remove_suffix(1);
        if (zeile.find_first_not_of(" \t") == std::string_view::npos || zeile.front() == '#') continue;
        ergebnis.push_back(zeile.front() == '/' ? Text(zeile) : ordner + Text(zeile));
    }
    return ergebnis;
}

std::vector<Text> entfaltet(const std::vector<Text>& dateien) {
    std::vector<Text> ergebnis;
    for (const Text& datei : dateien) {
        if (!ist_Liste(datei)) {
            ergebnis.push_back(datei);
            continue;
        }
        const auto lieder = lies_Liste(Inhalt(datei), datei.substr(0, datei.rfind('/') + 1));
        ergebnis.insert(ergebnis.end(), lieder.begin(), lieder.end());
    }
    return ergebnis;
}

}  // namespace tonkartei::spieler
