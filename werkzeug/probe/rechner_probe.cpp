#include "probe/rechner_probe.hpp"

#include <algorithm>
#include <chrono>
#include <cmath>

namespace tonkartei {

using std::chrono::sys_days;

Rechner_Probe::Rechner_Probe(const Zeitpunkt& uhr, Text temp_ordner, bool zweite_Instanz)
    : temp_(std::move(temp_ordner)), zweite_Instanz_(zweite_Instanz), zahlen_(std::random_device{}()) {
    const sys_days tag =
        std::chrono::year_month_day(std::chrono::year(uhr.Jahr), std::chrono::month(static_cast<unsigned>(uhr.Monat)),
                                    std::chrono::day(static_cast<unsigned>(uhr.Tag)));
    const std::chrono::sys_seconds uhrzeit =
        tag + std::chrono::hours(uhr.Stunde) + std::chrono::minutes(uhr.Minute) + std::chrono::seconds(uhr.Sekunde);
    beginn_ = uhrzeit.time_since_epoch().count();
}

Zeitpunkt Rechner_Probe::jetzt() {
    const std::chrono::sys_seconds zeit{std::chrono::seconds(beginn_ + ms_ / 1000)};
    const sys_days tag = std::chrono::floor<std::chrono::days>(zeit);
    const std::chrono::year_month_day datum(tag);
    const int sekunde = static_cast<int>((zeit - tag).count());
    return {static_cast<int>(datum.year()),
            static_cast<int>(static_cast<unsigned>(datum.month())),
            static_cast<int>(static_cast<unsigned>(datum.day())),
            sekunde / 3600,
            sekunde / 60 % 60,
            sekunde % 60};
}

float Rechner_Probe::Zufallszahl() {
    if (!bestellt_.empty()) {
        const auto wert = static_cast<float>(bestellt_.front());
        bestellt_.pop_front();
        // An ordered value just below 1 would be rounded up to it.
        return std::min(wert, std::nextafter(1.0F, 0.0F));
    }
    return static_cast<float>(zahlen_() >> 8U) / 16777216.0F;
}

// The clock may stand still between two seedings; they are to differ all the same.
void Rechner_Probe::Zufall_säen() {
    zahlen_.seed(static_cast<std::uint32_t>(beginn_ + ms_) * 2654435761U + ++aussaaten_ + std::random_device{}());
}

}  // namespace tonkartei
