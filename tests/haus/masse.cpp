// How far things may grow: a file, the share of big files, what a constructor takes.
#include <algorithm>
#include <regex>
#include <set>

#include "haus/hausordnung.hpp"

namespace tonkartei::haus {
namespace {

constexpr std::ptrdiff_t Zeilen_maximal = 400;
constexpr std::size_t Groß = 8192;  // bytes; one file in ten may have as many
constexpr std::ptrdiff_t Mitarbeiter_maximal = 5;
using Namen = std::set<std::string, std::less<>>;

// Parameters that are references or pointers to classes of ours, from behind the opening bracket on; what stands within
// further brackets (the arguments of a template, say) does not count, nor do values.
std::ptrdiff_t Mitarbeiter(std::string_view code, const Namen& eigene) {
    std::string flach;
    for (int tiefe = 1; !code.empty() && tiefe > 0; code.remove_prefix(1)) {
        tiefe += std::string_view("(<{").find(code[0]) != std::string_view::npos;
        tiefe -= std::string_view(")>}").find(code[0]) != std::string_view::npos;
        if (tiefe == 1) flach += code[0];
    }
    static const std::regex Verweis(R"(([^\s:,&*>)}]+)\s*[&*])");
    return std::count_if(std::sregex_iterator(flach.begin(), flach.end(), Verweis), {},
                         [&](const std::smatch& fund) { return eigene.contains(fund.str(1)); });
}

// A class's name with a bracket right behind it, at the beginning of a declaration.
bool ist_Konstruktor(std::string_view davor, std::string_view wort, std::string_view danach, const Namen& eigene) {
    davor = davor.substr(0, davor.find_last_not_of(" \n") + 1);
    return danach.starts_with('(') && eigene.contains(wort) &&
           (davor.ends_with("explicit") || davor.find_last_of(";{}:>") == davor.size() - 1);
}

}  // namespace

void prüfe_Maße(const Quellen& quellen, std::vector<Verstoß>& verstöße) {
    std::map<std::string_view, std::string> köpfe;  // of the program, without comments
    Namen eigene;
    std::size_t große = 0;
    for (const auto& [datei, text] : quellen) {
        if (const auto zeilen = std::count(text.begin(), text.end(), '\n'); zeilen > Zeilen_maximal)
            verstöße.push_back({datei, 0, "has " + std::to_string(zeilen) + " lines"});
        große += text.size() >= Groß;
        if (!datei.starts_with("src/") || !datei.ends_with(".hpp")) continue;
        std::string_view davor;
        for (const std::string_view wort : Wörter(köpfe[datei] = nur_Code(text))) {
            if (davor == "class" || davor == "struct") eigene.emplace(wort);
            davor = wort;
        }
    }
    if (große * 10 > quellen.size())
        verstöße.push_back({"", 0, std::to_string(große) + " files of " + std::to_string(quellen.size()) + " are big"});
    for (const auto& [datei, code] : köpfe)
        for (const std::string_view wort : Wörter(code)) {
            const std::string_view davor(code.data(), wort.data());
            const std::string_view danach = std::string_view(code).substr(davor.size() + wort.size());
            if (!ist_Konstruktor(davor, wort, danach, eigene)) continue;
            if (const auto anzahl = Mitarbeiter(danach.substr(1), eigene); anzahl > Mitarbeiter_maximal)
                verstöße.push_back({std::string(datei), static_cast<int>(std::count(davor.begin(), davor.end(), '\n')) + 1,
                                    std::string(wort) + " takes " + std::to_string(anzahl) + " collaborators"});
        }
}

}  // namespace tonkartei::haus
