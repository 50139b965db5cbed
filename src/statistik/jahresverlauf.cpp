#include "statistik/jahresverlauf.hpp"

#include <numeric>

namespace tonkartei {
namespace {

constexpr Farbe Linienfarbe = RGB(0, 0, 128);

}  // namespace

Long Jahresverlauf::Monat_Anzahl(int Monat) const {
    const auto& tage = Tage.at(static_cast<std::size_t>(Monat - 1));
    return std::accumulate(tage.begin(), tage.end(), Long{0});
}

Jahresverlauf Jahr_zählen(const std::vector<Zeitpunkt>& Daten, int Jahr) {
    Jahresverlauf verlauf;
    verlauf.Jahr = Jahr;
    for (const Zeitpunkt& datum : Daten) {
        if (datum.Jahr == Jahr) {
            ++verlauf.Jahr_Anzahl;
            ++verlauf.Tage.at(static_cast<std::size_t>(datum.Monat - 1)).at(static_cast<std::size_t>(datum.Tag - 1));
        } else if (datum.Jahr < Jahr) {
            ++verlauf.Vorher;
        }
    }
    return verlauf;
}

bool Monat_gezeichnet(int Jahr, int Monat, const Zeitpunkt& heute) {
    if (Jahr != heute.Jahr) return Jahr < heute.Jahr;
    return Monat == heute.Monat ? Monat <= heute.Tag : Monat < heute.Monat;
}

std::vector<Linie> Verlauf_zeichnen(const Jahresverlauf& verlauf, const Zeichengrund& grund, const Zeitpunkt& heute) {
    std::vector<Linie> linien;
    Long stand = verlauf.Vorher;
    const auto Höhe = [&] { return gerundet(static_cast<double>(stand) / grund.Gipfel * grund.Höhe); };
    int x = 0, y = grund.Höhe - Höhe();
    for (int m = 1; m <= Monate; ++m) {
        const auto monat = static_cast<std::size_t>(m - 1);
        const bool gezeichnet = Monat_gezeichnet(verlauf.Jahr, m, heute);
        const auto [links, breite] = grund.Spalten.at(monat);
        for (int tag = 1; tag <= Tage_je_Monat; ++tag) {
            stand += verlauf.Tage.at(monat).at(static_cast<std::size_t>(tag - 1));
            const int x_neu = gerundet(links + static_cast<double>(tag) / Tage_je_Monat * breite);
            const int y_neu = grund.Höhe - Höhe();
            if (gezeichnet) linien.push_back({x, y, x_neu, y_neu, Linienfarbe});
            x = x_neu;
            y = y_neu;
        }
    }
    return linien;
}

}  // namespace tonkartei
