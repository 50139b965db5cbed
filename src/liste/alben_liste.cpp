#include "liste/alben_liste.hpp"

#include "liste/sortierung.hpp"

namespace tonkartei {

std::vector<long long> sortierte_Alben(const Albenbestand& bestand) {
    Sortier_Liste sortiert;
    sortiert.vormerken(static_cast<std::size_t>(bestand.Anzahl), static_cast<std::size_t>(bestand.Anzahl) * 48);
    for (Long n = 1; n <= bestand.Anzahl; ++n) {
        const Album& album = bestand.Alben[n];
        sortiert.hinzufügen(album.Interpret, album.Titel, n, 4);
    }
    return sortiert.sortierte_Nummern();
}

std::vector<Text> Titelzeilen(const Album& album) {
    std::vector<Text> zeilen;
    zeilen.reserve(album.Titel_Anzahl);
    for (int t = 1; t <= album.Titel_Anzahl; ++t) {
        const Album_Lied& titel = album.Lieder[t];
        Text zeile = titel.Artist == album.Interpret ? Text{} : titel.Artist;
        if (!zeile.empty() && !titel.Titel.empty()) zeile += " - ";
        zeile += titel.Titel;
        zeilen.push_back(std::move(zeile));
    }
    return zeilen;
}

}  // namespace tonkartei
