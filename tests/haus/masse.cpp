// How far things may grow: a file, the share of big files, what a constructor takes.
#include <algorithm>
#include <set>

#include "haus/hausordnung.hpp"

namespace tonkartei::haus {
namespace {

constexpr std::ptrdiff_t Zeilen_maximal = 400;
constexpr std::size_t Groß = 8192;  // bytes; one file in ten may have as many
constexpr int Mitarbeiter_maximal = 5;

// Parameters that are references or pointers to classes of ours, from behind the opening bracket on; what stands within
// further brackets (the arguments of a template, say) does not count, nor do values.
int Mitarbeiter(std::string_view code, std::size_t ab, const std::set<std::string_view>& eigene) {
    int anzahl = 0, tiefe = 1;
    for (std::string typ; ab < code.size() && tiefe > 0; ++ab) {
        const char zeichen = code[ab];
        if (std::string_view("(<{").find(zeichen) != std::string_view::npos) ++tiefe;
        if (std::string_view(")>}").find(zeichen) != std::string_view::npos) --tiefe;
        if (tiefe > 1) continue;
        if (zeichen == '&' || zeichen == '*') {
            const auto wörter = Wörter(typ);
            anzahl += !wörter.empty() && eigene.contains(wörter.back());
        }
        if (zeichen == '&' || zeichen == '*' || zeichen == ',') typ.clear();
        if (tiefe == 1) typ += zeichen;
    }
    return anzahl;
}

// A class's name with a bracket right behind it, at the beginning of a declaration.
bool ist_Konstruktor(std::string_view code, std::string_view wort, const std::set<std::string_view>& eigene) {
    const auto anfang = static_cast<std::size_t>(wort.data() - code.data());
    if (code.substr(anfang + wort.size(), 1) != "(" || !eigene.contains(wort)) return false;
    std::string_view davor = code.substr(0, code.find_last_not_of(" \n", anfang - 1) + 1);
    return davor.ends_with("explicit") || davor.find_last_of(";{}:") == davor.size() - 1;
}

}  // namespace

void prüfe_Maße(const Quellen& quellen, std::vector<Verstoß>& verstöße) {
    std::map<std::string_view, std::string> köpfe;  // of the program, without comments
    std::set<std::string_view> eigene;
    std::size_t große = 0;
    for (const auto& [datei, text] : quellen) {
        if (const auto zeilen = std::count(text.begin(), text.end(), '\n'); zeilen > Zeilen_maximal)
            verstöße.push_back({datei, 0, "has " + std::to_string(zeilen) + " lines"});
        große += text.size() >= Groß;
        if (!datei.starts_with("src/") || !datei.ends_with(".hpp")) continue;
        std::string_view davor;
        for (const std::string_view wort : Wörter(köpfe[datei] = nur_Code(text))) {
            if (davor == "class" || davor == "struct") eigene.insert(wort);
            davor = wort;
        }
    }
    if (große * 10 > quellen.size())
        verstöße.push_back({"", 0, std::to_string(große) + " files of " + std::to_string(quellen.size()) + " are big"});
    for (const auto& [datei, code] : köpfe)
        for (const std::string_view wort : Wörter(code)) {
            if (!ist_Konstruktor(code, wort, eigene)) continue;
            const auto klammer = static_cast<std::size_t>(wort.data() - code.data()) + wort.size();
            const int anzahl = Mitarbeiter(code, klammer + 1, eigene);
            const auto zeile = std::count(code.begin(), code.begin() + static_cast<std::ptrdiff_t>(klammer), '\n') + 1;
            if (anzahl > Mitarbeiter_maximal)
                verstöße.push_back({std::string(datei), static_cast<int>(zeile),
                                    std::string(wort) + " takes " + std::to_string(anzahl) + " collaborators"});
        }
}

}  // namespace tonkartei::haus
