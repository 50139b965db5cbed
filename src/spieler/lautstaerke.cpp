#include "spieler/lautstaerke.hpp"

#include <array>
#include <charconv>
#include <cstdio>
#include <random>

#include "plattform/offene_datei.hpp"

namespace tonkartei::spieler {

Text Dateiname_aus_Klasse(const Text& klasse) {
    constexpr std::size_t Höchstlänge = 200;
    Text name;
    std::uint64_t streuwert = 0xCBF29CE484222325;  // FNV-1a, for classes whose name would be too long
    for (const char zeichen : klasse) {
        const auto code = static_cast<unsigned char>(zeichen);
        streuwert = (streuwert ^ code) * 0x100000001B3;
        const bool schlicht = (code >= '0' && code <= '9') || (code >= 'A' && code <= 'Z') || (code >= 'a' && code <= 'z');
        std::array<char, 4> form{};
        std::snprintf(form.data(), form.size(), schlicht ? "%c" : "%%%02X", code);
        name += form.data();
    }
    if (name.size() > Höchstlänge) {
        std::array<char, 20> form{};
        std::snprintf(form.data(), form.size(), "%016llx", static_cast<unsigned long long>(streuwert));
        name = name.substr(0, Höchstlänge) + "~" + form.data();
    }
    return name;
}

Lautstärkegedächtnis::Lautstärkegedächtnis(Dateisystem& platte, const Text& ordner, const Text& klasse) : platte_(platte) {
    if (!ordner.empty()) pfad_ = mit_Trenner(ordner) + "lautstaerke-" + Dateiname_aus_Klasse(klasse);
}

std::optional<int> Lautstärkegedächtnis::lesen() const try {
    if (pfad_.empty()) return std::nullopt;
    std::array<char, 16> text{};
    const std::size_t n = Offene_Datei(platte_, pfad_, Dateimodus::lesen).lesen(0, text);
    int wert = 0;
    if (std::from_chars(text.data(), text.data() + n, wert).ec != std::errc()) return std::nullopt;
    return wert >= 0 && wert <= 255 ? std::optional(wert) : std::nullopt;
} catch (const Dateifehler&) {
    return std::nullopt;
}

void Lautstärkegedächtnis::merken(int wert) const {
    if (pfad_.empty()) return;
    // Two players of one class may write at once.
    const Text neu = pfad_ + ".neu-" + std::to_string(std::random_device()());
    try {
        Offene_Datei datei(platte_, neu, Dateimodus::schreiben);
        datei.schreiben(0, std::to_string(wert) + "\n");
        datei.schließen();
        if (platte_.Datei_da(pfad_))
            platte_.ersetzen(neu, pfad_);
        else
            platte_.umbenennen(neu, pfad_);
    } catch (const Dateifehler&) {
        if (platte_.Datei_da(neu)) platte_.löschen(neu);
    }
}

}  // namespace tonkartei::spieler
