#include "liste/lieder_liste.hpp"

#include "liste/sortierung.hpp"

namespace tonkartei {

std::vector<long long> gefilterte_Lieder(const Modell& modell, Sortierung sortierung, const Text& suche,
                                         const std::function<bool(int)>& zeigt_Kategorie) {
    const Text gesucht = groß(suche);
    // The boxes stand still during the build: asked once each.
    const bool alle = zeigt_Kategorie(1);
    bool gezeigt[256] = {};
    for (int k = 1; k <= Kategorien_maximal; ++k) gezeigt[k] = zeigt_Kategorie(k);

    Sortier_Liste sortiert;
    sortiert.vormerken(static_cast<std::size_t>(modell.Anzahl_Lieder), static_cast<std::size_t>(modell.Anzahl_Lieder) * 48);
    Text schlüssel;
    for (Long n = 1; n <= modell.Anzahl_Lieder; ++n) {
        const Lied& lied = modell.Lieder[n];
        if (!alle && !gezeigt[lied.Kategorie]) continue;
        const bool nach_Titel = sortierung == Sortierung::Titel;
        schlüssel = nach_Titel ? lied.Titel : lied.Artist;
        schlüssel += nach_Titel ? lied.Artist : lied.Titel;
        if (!gesucht.empty() && groß(schlüssel).find(gesucht) == Text::npos) continue;
        sortiert.hinzufügen(schlüssel, n, 8);
    }
    return sortiert.sortierte_Nummern();
}

Text Listenzeile(const Lied& lied, Sortierung sortierung) {
    Text zeile;
    zeile.reserve(lied.Titel.size() + lied.Artist.size() + 3);
    if (sortierung == Sortierung::Titel)
        zeile.append(lied.Titel).append(" (").append(lied.Artist).append(")");
    else
        zeile.append(lied.Artist).append(" - ").append(lied.Titel);
    return zeile;
}

}  // namespace tonkartei
