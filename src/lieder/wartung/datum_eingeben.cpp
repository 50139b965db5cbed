#include "lieder/wartung/datum_eingeben.hpp"

#include <array>

#include "oberflaeche/ansicht.hpp"

namespace tonkartei {
namespace {

Text als_Text(const Zeitpunkt& tag) {
    return Zahl_mit_Nullen(tag.Tag, 2) + "." + Zahl_mit_Nullen(tag.Monat, 2) + "." + Zahltext(tag.Jahr);
}

}  // namespace

std::optional<Zeitpunkt> Datum_aus_Text(const Text& text, int Jahr) {
    std::array<int, 3> teile{};
    std::array<int, 3> stellen{};
    std::size_t teil = 0;
    for (const char zeichen : getrimmt(text)) {
        if (zeichen == '.') {
            if (++teil >= teile.size()) return std::nullopt;
        } else if (zeichen >= '0' && zeichen <= '9' && stellen[teil] < 4) {
            teile[teil] = teile[teil] * 10 + (zeichen - '0');
            ++stellen[teil];
        } else {
            return std::nullopt;
        }
    }
    auto [tag, monat, jahr] = teile;
    if (stellen[0] == 0 || stellen[1] == 0) return std::nullopt;
    if (stellen[2] == 0)
        jahr = Jahr;
    else if (stellen[2] <= 2)
        jahr += jahr < 30 ? 2000 : 1900;
    try {
        const Zeitpunkt zeit = Zeitpunkt_aus(tag, monat, jahr, 0, 0, 0);
        // A day that the month does not have would have run over into the next one.
        if (zeit.Tag == tag && zeit.Monat == monat && zeit.Jahr == jahr) return zeit;
    } catch (const Laufzeitfehler&) {
        // Beyond the calendar.
    }
    return std::nullopt;
}

Datum_eingeben::Datum_eingeben(Ansicht& ansicht, Rechner& rechner)
    : Wartedialog(ansicht, "Datum_eingeben", "Datum eingeben"), rechner_(rechner) {
    Datum.tooltip("Der erste Tag, von dem an gesucht wird.");
    Ok.tooltip("Ab diesem Datum suchen.");
    Abbruch.tooltip("Nicht suchen.");
    Vorgabeknopf = &Ok;
    Abbruchknopf = &Abbruch;
    größenveränderlich = false;
    Ok.Klick.verbinden([this] { bestätigen(); });
    Abbruch.Klick.verbinden([this] { entladen(); });
}

std::optional<Zeitpunkt> Datum_eingeben::eingeben() {
    return fragen([] {}, Datum);
}

Knoten Datum_eingeben::anordnung() {
    return Spalte({Zeile({Datum_Text, Knoten(Datum).zeichen(14).dehnen(1)}),
                   Zeile({Feder(), Knoten(Ok).zeichen(12), Knoten(Abbruch).zeichen(12)})})
        .rand(12 * Twips_je_Pixel);
}

void Datum_eingeben::beim_Laden() { Datum.text(als_Text(rechner_.jetzt())); }

void Datum_eingeben::bestätigen() {
    if (getrimmt(Datum.text()).empty()) {
        entladen();
    } else if (const auto datum = Datum_aus_Text(Datum.text(), rechner_.jetzt().Jahr)) {
        antworten(*datum);
    } else {
        ansicht().informieren("Datum eingeben", "Das ist kein gültiges Datum!");
    }
}

}  // namespace tonkartei
