#include "datenbank/m3u.hpp"

#include <optional>

#include "grundlagen/versuchen.hpp"

namespace tonkartei {
namespace {

constexpr std::string_view Endung = ".MP3";

// The ending has letters of ASCII only, so its bytes tell. Most lines that are no songs need no more than this.
bool endet_wie_ein_Lied(std::string_view wert) {
    if (wert.size() < Endung.size()) return false;
    const std::string_view ende = wert.substr(wert.size() - Endung.size());
    return ende[0] == '.' && (ende[1] | 32) == 'm' && (ende[2] | 32) == 'p' && ende[3] == '3';
}

// The number between the folder and the ending, as far as the text is one: 0 without digits. None for what is no song of
// the folder, or one that the collection does not have.
std::optional<Long> Nummer_aus(std::string_view wert, const Text& Verzeichnis_groß, Long Anzahl_Lieder) {
    if (!endet_wie_ein_Lied(wert)) return std::nullopt;
    const Text zeile = groß(wert);
    if (!zeile.starts_with(Verzeichnis_groß) || zeile.size() < Verzeichnis_groß.size() + Endung.size()) return std::nullopt;
    const auto mitte =
        std::string_view(zeile).substr(Verzeichnis_groß.size(), zeile.size() - Verzeichnis_groß.size() - Endung.size());
    const double zahl = Zahlwert(mitte);
    if (zahl >= Lieder_maximal + 1) return std::nullopt;
    // However far below 1 it is, it is no song's.
    const Long nummer = zahl < -Lieder_maximal ? -1 : gerundet(zahl);
    return nummer <= Anzahl_Lieder ? std::optional(nummer) : std::nullopt;
}

}  // namespace

M3U_Datei::M3U_Datei(const Modell& modell, Kanäle& kanäle, const Text& Datei)
    : modell_(modell), kanäle_(kanäle), nummer_(kanäle.öffnen_zum_Schreiben(Datei)) {}

void M3U_Datei::fertig() {
    kanäle_.schließen(nummer_);
    nummer_ = 0;
}

void M3U::schreiben(const Text& Datei, const std::vector<Long>& Nummern) const {
    M3U_Datei datei(modell_, kanäle_, Datei);
    for (const Long nr : Nummern) datei.Lied(nr);
    datei.fertig();
}

bool M3U::Playlist_schreiben(const Text& Datei, const std::vector<Long>& Nummern) const {
    return versuchen([&] { schreiben(Datei, Nummern); });
}

M3U::Inhalt M3U::lesen(const Text& Datei) const {
    const Text verzeichnis = groß(modell_.Datenbank_Verzeichnis);
    Inhalt inhalt;
    const int nummer = kanäle_.öffnen_zum_Lesen(Datei);
    try {
        while (const auto wert = kanäle_.nächster_Rohwert(nummer, längster_Pfad)) {
            ++inhalt.Zeilen;
            if (const auto nr = Nummer_aus(*wert, verzeichnis, modell_.Anzahl_Lieder)) inhalt.Nummern.push_back(*nr);
        }
    } catch (...) {
        kanäle_.aufgeben(nummer);
        throw;
    }
    kanäle_.schließen(nummer);
    return inhalt;
}

}  // namespace tonkartei
