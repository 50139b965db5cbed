// How a collection grew over a year, by the dates of its files, and the line that shows it.
#pragma once

#include <array>
#include <vector>

#include "grundlagen/zeit.hpp"
#include "oberflaeche/elemente.hpp"

namespace tonkartei {

inline constexpr int Monate = 12, Tage_je_Monat = 31;  // every month has room for 31 days

struct Jahresverlauf {
    int Jahr = 0;
    Long Vorher = 0;       // songs of earlier years
    Long Jahr_Anzahl = 0;  // songs of this one
    std::array<std::array<Long, Tage_je_Monat>, Monate> Tage{};

    Long Monat_Anzahl(int Monat) const;
};

// A song whose file is missing has the empty date and counts as an old one.
Jahresverlauf Jahr_zählen(const std::vector<Zeitpunkt>& Daten, int Jahr);

// Whether the line is drawn in a month of the chosen year as seen on the day `heute`: of years gone by always, of years to
// come never. In the present year the months gone by are; but the present month, all of it, only from the day on whose
// number is the month's: in March nothing of March before the 3rd.
bool Monat_gezeichnet(int Jahr, int Monat, const Zeitpunkt& heute);

// The ground that it is drawn on, in twips.
struct Zeichengrund {
    struct Spalte {
        int links = 0, breite = 0;  // from the left edge of January
    };
    std::array<Spalte, Monate> Spalten{};
    int Höhe = 0;
    Long Gipfel = 0;  // songs at the upper edge; above 0
};

std::vector<Linie> Verlauf_zeichnen(const Jahresverlauf& verlauf, const Zeichengrund& grund, const Zeitpunkt& heute);

}  // namespace tonkartei
