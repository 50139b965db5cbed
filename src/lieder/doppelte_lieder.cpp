#include "lieder/doppelte_lieder.hpp"

namespace tonkartei {

Doppelte_Lieder::Doppelte_Lieder(const Modell& modell, Dateisystem& dateien,
                                 const std::function<void(Long Nr)>& fortschritt) {
    for (Long nr = 1; nr <= modell.Anzahl_Lieder; ++nr) {
        if (const auto zeit = dateien.Änderungszeit(modell.Lied_Pfad(nr)))
            nach_Größe_[modell.Lieder[nr].Größe].push_back({nr, *zeit});
        fortschritt(nr);
    }
}

std::vector<Long> Doppelte_Lieder::suchen(Long KByte, const Zeitpunkt& zeit) const {
    std::vector<Long> treffer;
    const auto gleich_große = nach_Größe_.find(KByte);
    if (gleich_große == nach_Größe_.end()) return treffer;
    for (const Eintrag& eintrag : gleich_große->second)
        if (eintrag.Zeit == zeit) treffer.push_back(eintrag.Nr);
    return treffer;
}

}  // namespace tonkartei
