#include "grundlagen/auskunft.hpp"

namespace tonkartei {

std::optional<Text> Auskunft(int anzahl, const char* const* worte, std::string_view hilfe, std::string_view version) {
    for (int i = 1; i < anzahl; ++i) {
        const std::string_view wort = worte[i];
        if (wort == "--help") return Text(hilfe);
        if (wort == "--version") return Text(version);
    }
    return std::nullopt;
}

}  // namespace tonkartei
