#include "plattform/linux/befehlstext.hpp"

#include <sys/stat.h>
#include <unistd.h>

#include "plattform/dateisystem.hpp"

namespace tonkartei {
namespace {

bool Programm_da(const Text& pfad) {
    struct stat da {};
    return ::stat(pfad.c_str(), &da) == 0 && S_ISREG(da.st_mode) && ::access(pfad.c_str(), X_OK) == 0;
}

std::vector<Text> mit_Programm(Text programm, std::string_view rest) {
    std::vector<Text> teile = Argumente_von(rest);
    teile.insert(teile.begin(), std::move(programm));
    return teile;
}

}  // namespace

std::vector<Text> Argumente_von(std::string_view text) {
    std::vector<Text> teile;
    bool im_Wort = false;
    bool im_Zitat = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char zeichen = text[i];
        if (!im_Zitat && (zeichen == ' ' || zeichen == '\t')) {
            im_Wort = false;
            continue;
        }
        if (!im_Wort) teile.emplace_back();
        im_Wort = true;
        const bool verdoppelt = im_Zitat && zeichen == '"' && i + 1 < text.size() && text[i + 1] == '"';
        if (verdoppelt) ++i;
        if (zeichen == '"' && !verdoppelt)
            im_Zitat = !im_Zitat;
        else
            teile.back().push_back(zeichen);
    }
    return teile;
}

std::optional<std::vector<Text>> Befehl_zerlegt(std::string_view befehl, const Text& ordner) {
    while (!befehl.empty() && befehl.front() == ' ') befehl.remove_prefix(1);
    if (befehl.empty() || befehl.find('\0') != std::string_view::npos) return std::nullopt;
    const auto voll = [&](std::string_view pfad) {
        return ist_absolut(Text(pfad)) ? Text(pfad) : mit_Trenner(ordner) + Text(pfad);
    };
    if (befehl.front() == '"') {
        const auto ende = befehl.find('"', 1);
        if (ende == std::string_view::npos) return std::nullopt;
        const Text programm = voll(befehl.substr(1, ende - 1));
        if (!Programm_da(programm)) return std::nullopt;
        return mit_Programm(programm, befehl.substr(ende + 1));
    }
    for (auto ende = befehl.size(); ende != std::string_view::npos && ende > 0; ende = befehl.rfind(' ', ende - 1))
        if (const Text programm = voll(befehl.substr(0, ende)); Programm_da(programm))
            return mit_Programm(programm, befehl.substr(ende));
    return std::nullopt;
}

}  // namespace tonkartei
