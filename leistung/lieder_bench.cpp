// The searches that compare songs with songs: four times the songs may take somewhat more than four times as long, and not
// sixteen times.
#include <string>
#include <vector>

#include "echt.hpp"
#include "leistung/verhaeltnis.hpp"
#include "lieder/hinzufuegen/doppelte_lieder.hpp"
#include "lieder/wartung/zwillinge.hpp"

using namespace tonkartei;

namespace {

// Tells the times of song files that need not exist.
struct Zeitenbuch : Dateisystem_echt {
    explicit Zeitenbuch(const std::vector<std::optional<Zeitpunkt>>& bekannte) : zeiten(bekannte) {}
    std::optional<Zeitpunkt> Änderungszeit(const Text& pfad) override {
        return zeiten[static_cast<std::size_t>(std::stol(pfad.substr(1))) - 1];
    }
    const std::vector<std::optional<Zeitpunkt>>& zeiten;
};

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
    // As many new files as there are songs, all of one size, so that only the times tell them apart.
    std::size_t Doppelte() {
        modell.Datenbank_Verzeichnis = "/";
        for (Long n = 1; n <= modell.Anzahl_Lieder; ++n) modell.Lieder[n].Größe = 3000;
        Zeitenbuch dateien(zeiten);
        std::size_t summe = 0;
        const Doppelte_Lieder doppelte(modell, dateien, [](Long) {});
        for (const auto& zeit : zeiten) summe += doppelte.suchen(3000, *zeit).size();
        return summe;
    }
    Modell modell;
    std::vector<std::optional<Zeitpunkt>> zeiten;
};

}  // namespace

int main() {
    Vergleich ganz(Lieder_maximal), viertel(Lieder_maximal / 4);
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
    v.höchstens(
        "Prüfung von 5000 Dateien auf 5000 Lieder", 6, "die von 1250 auf 1250", [&] { return ganz.Doppelte(); },
        [&] { return viertel.Doppelte(); });
    return v.Ergebnis();
}
