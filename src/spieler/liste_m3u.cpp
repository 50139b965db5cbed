#include "spieler/liste_m3u.hpp"

#include <algorithm>

#include "plattform/offene_datei.hpp"

namespace tonkartei::spieler {

namespace {

constexpr std::size_t Höchstlänge_Liste = std::size_t{16} << 20;

bool endet_auf(std::string_view pfad, std::string_view endung) {
    if (pfad.size() < endung.size()) return false;
    return std::ranges::equal(pfad.substr(pfad.size() - endung.size()), endung,
                              [](char a, char b) { return (a >= 'A' && a <= 'Z' ? a + 32 : a) == b; });
}

std::string Inhalt(const Text& pfad, Dateisystem& platte) {
    try {
        Offene_Datei datei(platte, pfad, Dateimodus::lesen);
        std::string inhalt(static_cast<std::size_t>(std::min<std::uint64_t>(datei.Länge(), Höchstlänge_Liste)), '\0');
        inhalt.resize(datei.lesen(0, inhalt));
        return inhalt;
    } catch (const Dateifehler&) {
        return {};
    }
}

}  // namespace

bool ist_Liste(const Text& pfad) { return endet_auf(pfad, ".m3u") || endet_auf(pfad, ".m3u8"); }

Text ganzer_Pfad(const Text& pfad, const Text& ordner) {
    if (pfad.empty() || ist_absolut(pfad)) return pfad;
    return pfad.front() == Trenner ? ordner.substr(0, ordner.find(Trenner)) + pfad : mit_Trenner(ordner) + pfad;
}

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
        ergebnis.push_back(ganzer_Pfad(Text(zeile), ordner));
    }
    return ergebnis;
}

std::vector<Text> entfaltet(const std::vector<Text>& dateien, Dateisystem& platte) {
    std::vector<Text> ergebnis;
    for (const Text& datei : dateien) {
        if (!ist_Liste(datei)) {
            ergebnis.push_back(datei);
            continue;
        }
        const auto lieder = lies_Liste(Inhalt(datei, platte), Ordner_von(datei));
        ergebnis.insert(ergebnis.end(), lieder.begin(), lieder.end());
    }
    return ergebnis;
}

}  // namespace tonkartei::spieler
