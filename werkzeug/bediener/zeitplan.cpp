#include "bediener/zeitplan.hpp"

#include <algorithm>

#include "oberflaeche/zeitgeber.hpp"

namespace tonkartei {

void Zeitplan::stellen(Zeitgeber& zeitgeber, std::int64_t jetzt) {
    entfernen(zeitgeber);
    if (!zeitgeber.aktiv()) return;
    const Eintrag neu{&zeitgeber, jetzt + zeitgeber.Intervall()};
    const auto stelle = std::upper_bound(einträge_.begin(), einträge_.end(), neu,
                                         [](const Eintrag& a, const Eintrag& b) { return a.fällig < b.fällig; });
    einträge_.insert(stelle, neu);
}

void Zeitplan::entfernen(const Zeitgeber& zeitgeber) {
    std::erase_if(einträge_, [&](const Eintrag& e) { return e.Wer == &zeitgeber; });
}

std::optional<std::int64_t> Zeitplan::nächste_Fälligkeit() const {
    if (einträge_.empty()) return std::nullopt;
    return einträge_.front().fällig;
}

Zeitgeber* Zeitplan::nehmen(std::int64_t fällig_bis, std::int64_t jetzt) {
    if (einträge_.empty() || einträge_.front().fällig > fällig_bis) return nullptr;
    Zeitgeber* wer = einträge_.front().Wer;
    stellen(*wer, std::max(jetzt, einträge_.front().fällig));
    return wer;
}

}  // namespace tonkartei
