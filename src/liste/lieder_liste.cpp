#include "liste/lieder_liste.hpp"

#include <array>
#include <charconv>

#include "liste/sortierung.hpp"

namespace tonkartei {

namespace {

// Stands for an artist that is empty: in front of every character that a name can begin with, so that these songs come
// first, as their lines do to the eye, and not under the letter of their titles.
constexpr std::string_view kein_Artist = "\x01";

struct Felder {
    std::string_view vorne;
    std::string_view hinten;
};

Felder Felder_von(const Lied& lied, Sortierung sortierung) {
    if (sortierung == Sortierung::Titel) return {lied.Titel, lied.Artist};
    return {lied.Artist.empty() ? kein_Artist : std::string_view(lied.Artist), lied.Titel};
}

}  // namespace

std::string_view Liederordnung::Textreihe::operator[](Long n) const {
    const auto i = static_cast<std::size_t>(n - 1);
    const std::uint32_t anfang = i == 0 ? 0 : enden[i - 1];
    return std::string_view(bytes).substr(anfang, enden[i] - anfang);
}

void Liederordnung::Textreihe::anhängen(std::string_view a, std::string_view b) {
    bytes.append(a).append(b);
    enden.push_back(static_cast<std::uint32_t>(bytes.size()));
}

bool Liederordnung::gilt(const Stand& stand, const Modell& modell, Sortierung sortierung) {
    if (stand.folge.size() != static_cast<std::size_t>(modell.Anzahl_Lieder)) return false;
    for (Long n = 1; n <= modell.Anzahl_Lieder; ++n) {
        const auto [vorne, hinten] = Felder_von(modell.Lieder[n], sortierung);
        const std::string_view name = stand.namen[n];
        if (name.size() != vorne.size() + hinten.size() || !name.starts_with(vorne) || !name.ends_with(hinten)) return false;
    }
    return true;
}

Liederordnung::Stand Liederordnung::geordnet(const Modell& modell, Sortierung sortierung) {
    Stand stand;
    Sortier_Liste sortiert;
    const auto anzahl = static_cast<std::size_t>(modell.Anzahl_Lieder);
    sortiert.vormerken(anzahl, anzahl * 80);
    stand.namen.bytes.reserve(anzahl * 80);
    stand.namen.enden.reserve(anzahl);
    stand.folge.reserve(anzahl);
    for (Long n = 1; n <= modell.Anzahl_Lieder; ++n) {
        const auto [vorne, hinten] = Felder_von(modell.Lieder[n], sortierung);
        stand.namen.anhängen(vorne, hinten);
        sortiert.hinzufügen(vorne, hinten, n, 8);
    }
    for (const long long n : sortiert.sortierte_Nummern()) stand.folge.push_back(static_cast<Long>(n));
    return stand;
}

std::vector<long long> Liederordnung::gefilterte_Lieder(const Modell& modell, Sortierung sortierung, const Text& suche,
                                                        const std::function<bool(int)>& zeigt_Kategorie) {
    Stand& stand = sortierung == Sortierung::Titel ? nach_Titel_ : nach_Artist_;
    if (!gilt(stand, modell, sortierung)) stand = geordnet(modell, sortierung);

    const Text gesucht = groß(suche);
    if (!gesucht.empty() && stand.schlüssel.enden.empty())
        for (Long n = 1; n <= modell.Anzahl_Lieder; ++n) stand.schlüssel.anhängen(groß(stand.namen[n]), {});
    // The boxes stand still during the build: asked once each.
    const bool alle = zeigt_Kategorie(1);
    std::array<bool, 256> gezeigt{};
    for (int k = 1; k <= Kategorien_maximal; ++k) gezeigt[static_cast<std::size_t>(k)] = zeigt_Kategorie(k);

    std::vector<long long> nummern;
    nummern.reserve(stand.folge.size());
    for (const Long n : stand.folge) {
        if (!alle && !gezeigt[modell.Lieder[n].Kategorie]) continue;
        if (!gesucht.empty() && stand.schlüssel[n].find(gesucht) == std::string_view::npos) continue;
        nummern.push_back(n);
    }
    return nummern;
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

Long Nummer_von(const Text& zeile) {
    Long nummer = 0;
    std::from_chars(zeile.data(), zeile.data() + zeile.size(), nummer);
    return nummer;
}

}  // namespace tonkartei
