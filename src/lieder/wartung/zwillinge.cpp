#include "lieder/wartung/zwillinge.hpp"

#include <string>
#include <unordered_map>

namespace tonkartei {
namespace {

// What twins have in common, as one text; none for a song that cannot have a twin.
std::optional<Text> Merkmal(const Lied& lied, Zwillingsart art, const std::optional<Zeitpunkt>& zeit) {
    switch (art) {
        case Zwillingsart::Namen: return lied.Artist + lied.Titel;
        case Zwillingsart::Artisten: return lied.Artist;
        case Zwillingsart::Titel: return lied.Titel;
        case Zwillingsart::Datum_Größe: break;
    }
    if (!zeit) return std::nullopt;
    Text merkmal = Zahltext(lied.Größe);
    for (const int teil : {zeit->Jahr, zeit->Monat, zeit->Tag, zeit->Stunde, zeit->Minute, zeit->Sekunde})
        merkmal += " " + Zahltext(teil);
    return merkmal;
}

}  // namespace

// To have a twin is an equivalence, so grouping by what twins share finds them in the order in which a comparison of each
// song with all others would.
std::vector<long long> doppelte_suchen(const Modell& modell, Zwillingsart Art,
                                       const std::vector<std::optional<Zeitpunkt>>& Zeiten,
                                       const std::function<void(Long Nr)>& fortschritt) {
    std::unordered_map<Text, std::size_t> gruppe_von;
    std::vector<std::vector<long long>> gruppen;
    for (Long nr = 1; nr <= modell.Anzahl_Lieder; ++nr) {
        const auto stelle = static_cast<std::size_t>(nr - 1);
        auto merkmal = Merkmal(modell.Lieder[nr], Art, stelle < Zeiten.size() ? Zeiten[stelle] : std::nullopt);
        if (merkmal) {
            const auto [gruppe, neu] = gruppe_von.try_emplace(std::move(*merkmal), gruppen.size());
            if (neu) gruppen.emplace_back();
            gruppen[gruppe->second].push_back(nr);
        }
        fortschritt(nr);
    }
    std::vector<long long> nummern;
    for (const auto& gruppe : gruppen)
        if (gruppe.size() > 1) nummern.insert(nummern.end(), gruppe.begin(), gruppe.end());
    return nummern;
}

}  // namespace tonkartei
