#include "plattform/dateisystem.hpp"

namespace tonkartei {
namespace {

constexpr bool Windows = Trenner == '\\';
constexpr std::string_view Trennende = Windows ? "\\/" : "/";

bool trennt(char zeichen) { return Trennende.find(zeichen) != std::string_view::npos; }

// "C:\": without its separator it would mean something else.
bool Laufwerkswurzel(const Text& pfad) { return Windows && pfad.size() == 3 && pfad[1] == ':'; }

}  // namespace

Text mit_Trenner(const Text& pfad) { return pfad.empty() || trennt(pfad.back()) ? pfad : pfad + Trenner; }

Text ohne_Trenner(Text pfad) {
    while (pfad.size() > 1 && trennt(pfad.back()) && !Laufwerkswurzel(pfad)) pfad.pop_back();
    return pfad;
}

Text Dateiname_von(const Text& pfad) { return pfad.substr(pfad.find_last_of(Trennende) + 1); }

Text Ordner_von(const Text& pfad) { return pfad.substr(0, pfad.find_last_of(Trennende) + 1); }

bool ist_absolut(const Text& pfad) {
    if constexpr (!Windows) return !pfad.empty() && pfad.front() == Trenner;
    // A drive and its root, or a share.
    return pfad.size() > 2 ? (pfad[1] == ':' && trennt(pfad[2])) || (trennt(pfad[0]) && trennt(pfad[1])) : false;
}

}  // namespace tonkartei
