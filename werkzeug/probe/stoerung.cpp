#include "probe/stoerung.hpp"

namespace tonkartei {

std::optional<Vorgang> Vorgang_von(const Text& name) {
    static constexpr std::array<const char*, Vorgang_Anzahl> Namen{"öffnen",  "lesen",    "schreiben", "umbenennen",
                                                                   "löschen", "kopieren", "anlegen",   "starten"};
    for (std::size_t i = 0; i < Namen.size(); ++i)
        if (name == Namen[i]) return static_cast<Vorgang>(i);
    return std::nullopt;
}

bool Störungen::trifft(Vorgang vorgang) {
    if (abgelaufen(abstürze_[stelle(vorgang)])) absturz_();
    return abgelaufen(fehler_[stelle(vorgang)]);
}

}  // namespace tonkartei
