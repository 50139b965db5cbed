#include "albenverwaltung/album_abgleich.hpp"

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

#include "datenbank/modell.hpp"

namespace tonkartei {

Long Titel_verknüpfen(Album& album, const Bestand& bestand, const std::function<void(int Titel)>& fortschritt) {
    struct Fund {
        Long letztes = 0, anzahl = 0;
    };
    // Only the album's own names are looked for, so that is all there is to remember.
    std::map<std::pair<std::string_view, std::string_view>, Fund> funde;
    for (int t = 1; t <= album.Titel_Anzahl; ++t) funde[{album.Lieder[t].Titel, album.Lieder[t].Artist}];
    for (Long nr = 1; nr <= bestand.Anzahl_Lieder; ++nr) {
        const auto fund = funde.find({bestand.Lieder[nr].Titel, bestand.Lieder[nr].Artist});
        if (fund != funde.end()) fund->second = {nr, fund->second.anzahl + 1};
    }
    Long gefunden = 0;
    for (int t = 1; t <= album.Titel_Anzahl; ++t) {
        Album_Lied& titel = album.Lieder[t];
        if (const Fund& fund = funde[{titel.Titel, titel.Artist}]; fund.anzahl > 0) {
            titel.in_Datenbank = true;
            titel.Lied_Nr = fund.letztes;
            gefunden += fund.anzahl;
        }
        fortschritt(t);
    }
    return gefunden;
}

Zeit Zeit_aus_Eingabe(std::string_view text) {
    static constexpr double höchstens = 1e6;  // far beyond the hour, and small enough for whole numbers
    const auto zahl = [](std::string_view teil) { return std::clamp(std::nearbyint(Zahlwert(teil)), 0.0, höchstens); };
    const std::size_t doppelpunkt = text.find(':');
    double minuten = zahl(text.substr(0, doppelpunkt));
    double sekunden = doppelpunkt == std::string_view::npos ? 0 : zahl(text.substr(doppelpunkt + 1));
    minuten += std::floor(sekunden / 60);
    sekunden = std::fmod(sekunden, 60);
    return Zeit_aus(0, minuten < 60 ? minuten : 0, sekunden);
}

}  // namespace tonkartei
