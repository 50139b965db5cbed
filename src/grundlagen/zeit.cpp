#include "grundlagen/zeit.hpp"

#include <array>
#include <chrono>
#include <cmath>

#include "grundlagen/fehler.hpp"

namespace tonkartei {
namespace {

constexpr long long Tag_Sekunden = 86400;

long long Sekunde_des_Tages(Zeit zeit) {
    // Nearly all times lie within one day, where nothing need be taken off.
    const double bruch = zeit >= 0 && zeit < 1 ? zeit : std::fabs(std::fmod(zeit, 1.0));
    return std::llround(bruch * static_cast<double>(Tag_Sekunden)) % Tag_Sekunden;
}

Text zwei(int wert) { return Zahl_mit_Nullen(wert, 2); }

constexpr std::array<const char*, 12> Monate = {"Januar", "Februar", "März",      "April",   "Mai",      "Juni",
                                                "Juli",   "August",  "September", "Oktober", "November", "Dezember"};
constexpr std::array<const char*, 12> Monate_kurz = {"Jan", "Feb", "Mrz", "Apr", "Mai", "Jun",
                                                     "Jul", "Aug", "Sep", "Okt", "Nov", "Dez"};
constexpr std::array<const char*, 7> Wochentage = {"Sonntag",    "Montag",  "Dienstag", "Mittwoch",
                                                   "Donnerstag", "Freitag", "Samstag"};

}  // namespace

Zeit Zeit_aus(double Stunden, double Minuten, double Sekunden) {
    const long long summe =
        gerundet_Integer(Stunden) * 3600LL + gerundet_Integer(Minuten) * 60LL + gerundet_Integer(Sekunden);
    return static_cast<double>(summe) / static_cast<double>(Tag_Sekunden);
}

int Stunde(Zeit zeit) { return static_cast<int>(Sekunde_des_Tages(zeit) / 3600); }
int Minute(Zeit zeit) { return static_cast<int>(Sekunde_des_Tages(zeit) / 60 % 60); }
int Sekunde(Zeit zeit) { return static_cast<int>(Sekunde_des_Tages(zeit) % 60); }
Long Sekunden_von(Zeit zeit) { return static_cast<Long>(Sekunde_des_Tages(zeit)); }

Text Minuten_Sekunden(Zeit zeit) { return zwei(Minute(zeit)) + ":" + zwei(Sekunde(zeit)); }

Text Dauer_Text(double Sekunden) {
    if (Sekunden > static_cast<double>(Tag_Sekunden)) return Zahltext(static_cast<long long>(Sekunden / 3600)) + "h";
    const Long minuten = gerundet(Sekunden / 60);
    return zwei(minuten / 60) + ":" + zwei(minuten % 60);
}

Zeitpunkt Zeitpunkt_aus(double Tag, double Monat, double Jahr, double Stunde, double Minute, double Sekunde) {
    // A year beyond chrono's 16 bits wraps around, to one that is far from those which are let through.
    const std::chrono::year_month erster =
        std::chrono::year(0) / 1 + std::chrono::months(gerundet_Integer(Jahr) * 12 + gerundet_Integer(Monat) - 1);
    const std::chrono::sys_seconds punkt = std::chrono::sys_days(erster / 1) + std::chrono::days(gerundet_Integer(Tag) - 1) +
                                           std::chrono::hours(gerundet_Integer(Stunde)) +
                                           std::chrono::minutes(gerundet_Integer(Minute)) +
                                           std::chrono::seconds(gerundet_Integer(Sekunde));
    const auto tag = std::chrono::floor<std::chrono::days>(punkt);
    const std::chrono::year_month_day datum(tag);
    const std::chrono::hh_mm_ss uhr(punkt - tag);
    const int jahr = static_cast<int>(datum.year());
    if (jahr < 100 || jahr > 9999) throw Laufzeitfehler(5, "Ungültiger Prozeduraufruf oder ungültiges Argument");
    return {jahr,
            static_cast<int>(static_cast<unsigned>(datum.month())),
            static_cast<int>(static_cast<unsigned>(datum.day())),
            static_cast<int>(uhr.hours().count()),
            static_cast<int>(uhr.minutes().count()),
            static_cast<int>(uhr.seconds().count())};
}

Text mittleres_Datum(const Zeitpunkt& zeit) {
    return zwei(zeit.Tag) + ". " + Monate_kurz[static_cast<std::size_t>(zeit.Monat - 1)] + " " + Zahltext(zeit.Jahr);
}

Text langes_Datum(const Zeitpunkt& zeit) {
    const std::chrono::weekday wochentag(std::chrono::sys_days(std::chrono::year(zeit.Jahr) / zeit.Monat / zeit.Tag));
    return Text(Wochentage[wochentag.c_encoding()]) + ", " + Zahltext(zeit.Tag) + ". " +
           Monate[static_cast<std::size_t>(zeit.Monat - 1)] + " " + Zahltext(zeit.Jahr);
}

Text kurze_Uhrzeit(const Zeitpunkt& zeit) { return zwei(zeit.Stunde) + ":" + zwei(zeit.Minute); }
Text lange_Uhrzeit(const Zeitpunkt& zeit) { return kurze_Uhrzeit(zeit) + ":" + zwei(zeit.Sekunde); }

}  // namespace tonkartei
