#include "lieder/hinzufuegen/doppelte_lieder.hpp"

namespace tonkartei {

Doppelte_Lieder::Doppelte_Lieder(const Modell& modell, Dateisystem& dateien,
                                 const std::function<void(Long Nr)>& fortschritt) {
    for (Long nr = 1; nr <= modell.Anzahl_Lieder; ++nr) {
        if (const auto zeit = dateien.Änderungszeit(modell.Lied_Pfad(nr)))
            nummern_[{modell.Lieder[nr].Größe, *zeit}].push_back(nr);
        fortschritt(nr);
    }
}

std::span<const Long> Doppelte_Lieder::suchen(Long KByte, const Zeitpunkt& zeit) const {
    const auto treffer = nummern_.find({KByte, zeit});
    return treffer == nummern_.end() ? std::span<const Long>{} : treffer->second;
}

std::size_t Doppelte_Lieder::Streuung::operator()(const Merkmal& merkmal) const noexcept {
    const Zeitpunkt& z = merkmal.Zeit;
    const int tag = (z.Jahr * 12 + z.Monat) * 31 + z.Tag;
    const auto zeit = static_cast<std::uint64_t>(((tag * 24LL + z.Stunde) * 60 + z.Minute) * 60 + z.Sekunde);
    // Multiplied, so that sizes and times that follow each other do not meet in one place.
    const std::uint64_t wert = zeit * 0x9E3779B97F4A7C15U ^ static_cast<std::uint64_t>(merkmal.KByte) * 0xC2B2AE3D27D4EB4FU;
    return static_cast<std::size_t>(wert ^ wert >> 32U);
}

}  // namespace tonkartei
