#include "programm/szene.hpp"

#include <algorithm>
#include <fstream>
#include <map>
#include <stdexcept>

namespace tonkartei {
namespace {

// A line that ends in "\n" or in a single "\" goes on in the next one, whose leading blanks do not count.
bool geht_weiter(std::string& zeile) {
    if (zeile.ends_with("\\n")) return true;
    if (!zeile.ends_with("\\")) return false;
    zeile.pop_back();
    return true;
}

}  // namespace

std::vector<Szene> Szenen_lesen(const std::string& pfad) {
    std::ifstream strom(pfad);
    if (!strom) throw std::runtime_error("no transcript " + pfad);
    std::vector<Szene> szenen;
    std::map<std::string, std::string> gemerkte;
    std::string zeile;
    for (int nr = 1; std::getline(strom, zeile); ++nr) {
        if (zeile.empty() || zeile.starts_with("#")) continue;
        if (zeile.starts_with("@") && zeile.ends_with(" =")) {
            std::string& text = gemerkte[zeile.substr(0, zeile.size() - 2)];
            do {
                std::getline(strom, zeile), ++nr;
                text += zeile.substr(std::min(zeile.find_first_not_of(' '), zeile.size()));
            } while (geht_weiter(text));
            continue;
        }
        if (zeile.starts_with("=== ")) {
            szenen.push_back({pfad, zeile.substr(4), nr, {}});
            continue;
        }
        if (szenen.empty()) throw std::runtime_error(pfad + " begins without a scene");
        auto& schritte = szenen.back().schritte;
        const bool zeichen = zeile.size() > 1 && std::string_view("!>?").find(zeile[0]) != std::string_view::npos;
        if (!zeichen && schritte.empty())
            throw std::runtime_error(pfad + ":" + std::to_string(nr) + ": nothing was done before this");
        if (zeile[0] == '|') {
            schritte.back().block.push_back(zeile.size() > 1 ? zeile.substr(2) : "");
            continue;
        }
        const int beginn = nr;
        std::string mehr;
        while (geht_weiter(zeile) && std::getline(strom, mehr)) {
            zeile += mehr.substr(std::min(mehr.find_first_not_of(' '), mehr.size()));
            ++nr;
        }
        if (zeile[0] == '@') zeile = gemerkte.at(zeile);
        if (zeichen)
            schritte.push_back({beginn, zeile[0], zeile.substr(2), {}, {}});
        else
            schritte.back().danach.push_back(zeile);
    }
    return szenen;
}

}  // namespace tonkartei
