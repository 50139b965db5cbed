#include "bediener/optionen.hpp"

#include <chrono>
#include <cstdio>
#include <stdexcept>

namespace tonkartei {
namespace {

Zeitpunkt Zeitpunkt_lesen(const Text& text) {
    Zeitpunkt z;
    int ende = 0;
    const int gelesen = std::sscanf(text.c_str(), "%4d-%2d-%2d %2d:%2d:%2d%n", &z.Jahr, &z.Monat, &z.Tag, &z.Stunde,
                                    &z.Minute, &z.Sekunde, &ende);
    const std::chrono::year_month_day tag(std::chrono::year(z.Jahr), std::chrono::month(static_cast<unsigned>(z.Monat)),
                                          std::chrono::day(static_cast<unsigned>(z.Tag)));
    if (gelesen != 6 || static_cast<std::size_t>(ende) != text.size() || !tag.ok() || z.Stunde > 23 || z.Minute > 59 ||
        z.Sekunde > 59)
        throw std::invalid_argument("no time: " + text);
    return z;
}

bool eins_von_beiden(const Text& wert, const Text& nein, const Text& ja) {
    if (wert != nein && wert != ja) throw std::invalid_argument("neither " + nein + " nor " + ja + ": " + wert);
    return wert == ja;
}

std::pair<Text, Text> Einstellung_lesen(const Text& wert) {
    const std::size_t gleich = wert.find('=');
    if (gleich == Text::npos || gleich == 0) throw std::invalid_argument("no KEY=VALUE: " + wert);
    return {wert.substr(0, gleich), wert.substr(gleich + 1)};
}

}  // namespace

Optionen Optionen_lesen(const std::vector<Text>& argumente) {
    Optionen o;
    for (std::size_t i = 0; i < argumente.size(); ++i) {
        Text name = argumente[i];
        if (name == "--zweite-instanz") {
            o.zweite_Instanz = true;
            continue;
        }
        Text wert;
        if (const std::size_t gleich = name.find('='); name.starts_with("--") && gleich != Text::npos) {
            wert = name.substr(gleich + 1);
            name.resize(gleich);
        } else if (i + 1 < argumente.size()) {
            wert = argumente[++i];
        } else {
            throw std::invalid_argument("unknown, or without its value: " + name);
        }
        if (name == "--wurzel")
            o.wurzel = wert;
        else if (name == "--parameter")
            o.parameter = wert;
        else if (name == "--maschine")
            o.echt = eins_von_beiden(wert, "probe", "echt");
        else if (name == "--ansicht")
            o.qt = eins_von_beiden(wert, "keine", "qt");
        else if (name == "--uhr")
            o.uhr = Zeitpunkt_lesen(wert);
        else if (name == "--setze")
            o.einstellungen.push_back(Einstellung_lesen(wert));
        else if (name == "--ordner")
            o.ordner = wert;
        else
            throw std::invalid_argument("unknown option: " + name);
    }
    return o;
}

}  // namespace tonkartei
