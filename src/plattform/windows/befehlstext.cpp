#include "plattform/windows/befehlstext.hpp"

#include "plattform/windows/pfadform.hpp"

namespace tonkartei {

std::optional<Befehl> Befehl_zerlegt(std::string_view befehl, Dateisystem& dateien) {
    while (!befehl.empty() && befehl.front() == ' ') befehl.remove_prefix(1);
    if (befehl.empty() || befehl.find('\0') != std::string_view::npos) return std::nullopt;
    const auto mit = [&](std::string_view programm, std::string_view rest) -> std::optional<Befehl> {
        if (!dateien.Datei_da(Text(programm))) return std::nullopt;
        const Text ganz = Pfadform_von(Text(programm), dateien.aktueller_Ordner())->Name;
        return Befehl{ganz, in_Anführungszeichen(ganz) + (rest.empty() || rest.front() == ' ' ? "" : " ") + Text(rest)};
    };
    if (befehl.front() == '"') {
        const auto ende = befehl.find('"', 1);
        return ende == std::string_view::npos ? std::nullopt : mit(befehl.substr(1, ende - 1), befehl.substr(ende + 1));
    }
    for (auto ende = befehl.size(); ende != std::string_view::npos && ende > 0; ende = befehl.rfind(' ', ende - 1))
        if (auto treffer = mit(befehl.substr(0, ende), befehl.substr(ende))) return treffer;
    return std::nullopt;
}

}  // namespace tonkartei
