// The searches that compare songs with songs: four times the songs may take somewhat more than four times as long, and not
// sixteen times.
#include <string>
#include <vector>

#include "leistung/verhaeltnis.hpp"
#include "lieder/zwillinge.hpp"

using namespace tonkartei;

namespace {

struct Vergleich {
    explicit Vergleich(Long anzahl) {
        modell.Anzahl_Lieder = anzahl;
        for (Long n = 1; n <= anzahl; ++n) {
            Lied& lied = modell.Lieder[n];
            lied.Artist = "Some Band With A Name " + std::to_string(n * 7919 % 997);
            lied.Titel = "A title of the usual length no. " + std::to_string(n * 31 % 4001);
            lied.Größe = 3000 + n % 2000;
            zeiten.push_back(Zeitpunkt{2001, 9, 9, n % 24, n % 60, n / 100 % 60});
        }
    }
    std::size_t suchen(Zwillingsart art) const {
        // What takes too little time to be measured is done more than once, equally often on both sides.
        std::size_t summe = 0;
        for (int n = 0; n < 5; ++n) summe += doppelte_suchen(modell, art, zeiten, [](Long) {}).size();
        return summe;
    }
    Modell modell;
    std::vector<std::optional<Zeitpunkt>> zeiten;
};

}  // namespace

int main() {
    const Vergleich ganz(Lieder_maximal), viertel(Lieder_maximal / 4);
    Verhältnisse v(31);
    const struct {
        Zwillingsart art;
        const char* was;
    } arten[] = {{Zwillingsart::Namen, "Doppelte Namen in 5000 Liedern"},
                 {Zwillingsart::Artisten, "Doppelte Artisten in 5000 Liedern"},
                 {Zwillingsart::Titel, "Doppelte Titel in 5000 Liedern"},
                 {Zwillingsart::Datum_Größe, "Doppelte nach Datum und Größe in 5000 Liedern"}};
    for (const auto& [art, was] : arten)
        v.höchstens(
            was, 6, "dieselbe Suche in 1250", [&, art = art] { return ganz.suchen(art); },
            [&, art = art] { return viertel.suchen(art); });
    return v.Ergebnis();
}
