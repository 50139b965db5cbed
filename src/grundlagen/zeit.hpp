// Times of day as the fraction of a day in a double, points of time by calendar and clock, and their German forms.
#pragma once

#include <compare>

#include "grundlagen/text.hpp"
#include "grundlagen/zahl.hpp"

namespace tonkartei {

using Zeit = double;  // fraction of a day; hours, minutes and seconds count

// Composed from its parts, each of which may run over (90 seconds are 1 minute 30) or be negative: the result may lie
// below 0 or above 1. Overflow (6) for a part beyond 16 bits.
Zeit Zeit_aus(double Stunden, double Minuten, double Sekunden);

// Parts of a time, to the nearest second.
int Stunde(Zeit zeit);
int Minute(Zeit zeit);
int Sekunde(Zeit zeit);

// Hours x 3600 + minutes x 60 + seconds.
Long Sekunden_von(Zeit zeit);

// "nn:ss": minutes and seconds, two digits each; the hours are dropped.
Text Minuten_Sekunden(Zeit zeit);

// Up to 24 hours "HH:MM" of the rounded minutes, above that whole hours and "h".
Text Dauer_Text(double Sekunden);

// A moment of the local calendar, to the second.
struct Zeitpunkt {
    int Jahr = 1899, Monat = 12, Tag = 30, Stunde = 0, Minute = 0, Sekunde = 0;
    // NOLINTNEXTLINE(modernize-use-nullptr): it takes the 0 of the comparison for one.
    auto operator<=>(const Zeitpunkt&) const = default;
    Zeit Tageszeit() const { return Zeit_aus(Stunde, Minute, Sekunde); }
};

// From parts that may run over, as a damaged file may hold them. Run-time error 5 outside the years 100 to 9999, 6 for a
// part beyond 16 bits.
Zeitpunkt Zeitpunkt_aus(double Tag, double Monat, double Jahr, double Stunde, double Minute, double Sekunde);

Text mittleres_Datum(const Zeitpunkt& zeit);  // "05. Mrz 2026"
Text langes_Datum(const Zeitpunkt& zeit);     // "Donnerstag, 5. März 2026"
Text kurze_Uhrzeit(const Zeitpunkt& zeit);    // "14:07"
Text lange_Uhrzeit(const Zeitpunkt& zeit);    // "14:07:33"

}  // namespace tonkartei
