#include "grundlagen/zeit.hpp"

#include <array>
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

// Days since 1970-01-01 of the Gregorian calendar, and back.
long long Tage_seit_1970(long long jahr, int monat, long long tag) {
    jahr -= monat <= 2;
    const long long ära = (jahr >= 0 ? jahr : jahr - 399) / 400;
    const long long jahr_der_ära = jahr - ära * 400;
    const long long tag_des_jahres = (153 * (monat + (monat > 2 ? -3 : 9)) + 2) / 5 + tag - 1;
    return ära * 146097 + jahr_der_ära * 365 + jahr_der_ära / 4 - jahr_der_ära / 100 + tag_des_jahres - 719468;
}

void Datum_von(long long tage, Zeitpunkt& zeit) {
    tage += 719468;
    const long long ära = (tage >= 0 ? tage : tage - 146096) / 146097;
    const long long tag_der_ära = tage - ära * 146097;
    const long long jahr = (tag_der_ära - tag_der_ära / 1460 + tag_der_ära / 36524 - tag_der_ära / 146096) / 365;
    const long long tag_des_jahres = tag_der_ära - (365 * jahr + jahr / 4 - jahr / 100);
    const long long monat = (5 * tag_des_jahres + 2) / 153;
    zeit.Tag = static_cast<int>(tag_des_jahres - (153 * monat + 2) / 5 + 1);
    zeit.Monat = static_cast<int>(monat < 10 ? monat + 3 : monat - 9);
    zeit.Jahr = static_cast<int>(jahr + ära * 400 + (zeit.Monat <= 2));
}

Text zwei(int wert) { return Zahl_mit_Nullen(wert, 2); }

constexpr std::array<const char*, 12> Monate = {"Januar", "Februar", "März",      "April",   "Mai",      "Juni",
                                                "Juli",   "August",  "September", "Oktober", "November", "Dezember"};
constexpr std::array<const char*, 12> Monate_kurz = {"Jan", "Feb", "Mrz", "Apr", "Mai", "Jun",
                                                     "Jul", "Aug", "Sep", "Okt", "Nov", "Dez"};
// 1970-01-01 was a Thursday.
constexpr std::array<const char*, 7> Wochentage = {"Donnerstag", "Freitag",  "Samstag", "Sonntag",
                                                   "Montag",     "Dienstag", "Mittwoch"};

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
    const long long monate = gerundet_Integer(Jahr) * 12LL + gerundet_Integer(Monat) - 1;
    const long long jahr = monate >= 0 ? monate / 12 : (monate - 11) / 12;
    long long tage = Tage_seit_1970(jahr, static_cast<int>(monate - jahr * 12) + 1, 1) + gerundet_Integer(Tag) - 1;
    long long sekunden = gerundet_Integer(Stunde) * 3600LL + gerundet_Integer(Minute) * 60LL + gerundet_Integer(Sekunde);
    long long über = sekunden / Tag_Sekunden;
    if (sekunden % Tag_Sekunden < 0) --über;
    tage += über;
    sekunden -= über * Tag_Sekunden;
    Zeitpunkt zeit;
    Datum_von(tage, zeit);
    if (zeit.Jahr < 100 || zeit.Jahr > 9999) throw Laufzeitfehler(5, "Ungültiger Prozeduraufruf oder ungültiges Argument");
    zeit.Stunde = static_cast<int>(sekunden / 3600);
    zeit.Minute = static_cast<int>(sekunden / 60 % 60);
    zeit.Sekunde = static_cast<int>(sekunden % 60);
    return zeit;
}

Text mittleres_Datum(const Zeitpunkt& zeit) {
    return zwei(zeit.Tag) + ". " + Monate_kurz[static_cast<std::size_t>(zeit.Monat - 1)] + " " + Zahltext(zeit.Jahr);
}

Text langes_Datum(const Zeitpunkt& zeit) {
    const long long tage = Tage_seit_1970(zeit.Jahr, zeit.Monat, zeit.Tag);
    const auto wochentag = static_cast<std::size_t>(((tage % 7) + 7) % 7);
    return Text(Wochentage[wochentag]) + ", " + Zahltext(zeit.Tag) + ". " +
           Monate[static_cast<std::size_t>(zeit.Monat - 1)] + " " + Zahltext(zeit.Jahr);
}

Text kurze_Uhrzeit(const Zeitpunkt& zeit) { return zwei(zeit.Stunde) + ":" + zwei(zeit.Minute); }
Text lange_Uhrzeit(const Zeitpunkt& zeit) { return kurze_Uhrzeit(zeit) + ":" + zwei(zeit.Sekunde); }

}  // namespace tonkartei
