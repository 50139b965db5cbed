#include "plattform/windows/pfadform.hpp"

#include <algorithm>
#include <string_view>
#include <vector>

#include "plattform/dateisystem.hpp"
#include "plattform/windows/breit.hpp"

namespace tonkartei {
namespace {

constexpr std::string_view Freigabe = "\\\\";
constexpr std::string_view langer_Vorsatz = "\\\\?\\";
constexpr std::size_t längster_Name = 255;  // 16-bit units
constexpr std::string_view Gerätevorsatz = "\\\\.\\";

bool hat_Laufwerk(std::string_view pfad) {
    return pfad.size() > 1 && pfad[1] == ':' && ((pfad[0] | 0x20) >= 'a' && (pfad[0] | 0x20) <= 'z');
}

bool reserviert(std::string_view name) {
    Text stamm = groß(name.substr(0, name.find('.')));
    while (!stamm.empty() && stamm.back() == ' ') stamm.pop_back();
    for (const char* wort : {"CON", "PRN", "AUX", "NUL", "CONIN$", "CONOUT$"})
        if (stamm == wort) return true;
    if (!stamm.starts_with("COM") && !stamm.starts_with("LPT")) return false;
    const std::string_view nummer = std::string_view(stamm).substr(3);
    return (nummer.size() == 1 && nummer[0] >= '0' && nummer[0] <= '9') || nummer == "¹" || nummer == "²" || nummer == "³";
}

bool möglich(std::string_view name) {
    return (name.size() <= längster_Name || breit(name).size() <= längster_Name) && name.back() != '.' &&
           name.back() != ' ' && !reserviert(name) && std::none_of(name.begin(), name.end(), [](char zeichen) {
               return static_cast<unsigned char>(zeichen) < ' ' || std::string_view("<>:\"|?*").find(zeichen) != Text::npos;
           });
}

// Length of the root: "C:\" or "\\server\share\". 0 without one.
std::size_t Wurzellänge(std::string_view pfad) {
    if (hat_Laufwerk(pfad)) return pfad.size() > 2 && pfad[2] == Trenner ? 3 : 0;
    if (!pfad.starts_with(Freigabe)) return 0;
    const auto hinter_Server = pfad.find(Trenner, Freigabe.size());
    if (hinter_Server == Text::npos || hinter_Server == Freigabe.size()) return 0;
    const auto ende = pfad.find(Trenner, hinter_Server + 1);
    return ende == Text::npos || ende == hinter_Server + 1 ? 0 : ende + 1;
}

}  // namespace

std::wstring Pfadform::weit() const {
    const bool auf_Freigabe = Name.starts_with(Freigabe);
    return breit(auf_Freigabe ? Text(langer_Vorsatz) + "UNC" + Name.substr(1) : Text(langer_Vorsatz) + Name);
}

std::optional<Pfadform> Pfadform_von(const Text& pfad, const Text& ordner) {
    Text ganz = pfad;
    std::replace(ganz.begin(), ganz.end(), '/', Trenner);
    if (ganz.starts_with(langer_Vorsatz)) {
        ganz.erase(0, langer_Vorsatz.size());
        if (groß(ganz.substr(0, 4)) == "UNC\\") ganz = Text(Freigabe) + ganz.substr(4);
        if (Wurzellänge(ganz) == 0) return std::nullopt;
    }
    if (ganz.starts_with(Gerätevorsatz)) return std::nullopt;
    if (ganz.starts_with(Freigabe)) {
        // "\\server\share" is its own root.
        if (Wurzellänge(ganz) == 0) ganz += Trenner;
    } else if (!hat_Laufwerk(ganz)) {
        const bool an_der_Wurzel = !ganz.empty() && ganz.front() == Trenner;
        ganz = an_der_Wurzel ? ordner.substr(0, Wurzellänge(ordner)) + ganz : mit_Trenner(ordner) + ganz;
    }
    const std::size_t wurzel = Wurzellänge(ganz);
    if (wurzel == 0) return std::nullopt;

    std::vector<std::string_view> namen;
    for (std::size_t von = wurzel; von < ganz.size();) {
        const std::size_t bis = std::min(ganz.find(Trenner, von), ganz.size());
        const auto name = std::string_view(ganz).substr(von, bis - von);
        von = bis + 1;
        if (name.empty() || name == ".") continue;
        if (name == "..") {
            if (!namen.empty()) namen.pop_back();
        } else if (möglich(name)) {
            namen.push_back(name);
        } else {
            return std::nullopt;
        }
    }
    Pfadform form{ganz.substr(0, wurzel), wurzel, ganz.size() > wurzel && ganz.back() == Trenner};
    for (const auto name : namen) (form.Name += name) += Trenner;
    if (!namen.empty()) form.Name.pop_back();
    return form;
}

}  // namespace tonkartei
