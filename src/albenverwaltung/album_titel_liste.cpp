#include "albenverwaltung/album_titel_liste.hpp"

#include "alben/alben.hpp"

namespace tonkartei {

Album_Titel_Liste::Album_Titel_Liste(Ansicht& ansicht) : Fenster(ansicht, "Album_Titel_Liste", "Titel des Albums") {
    Album_Text.wie_Daten = true;
    Liste.tooltip("Die Titel des Albums");
    Vorgabeknopf = Abbruchknopf = &Ok;
    Ok.Klick.verbinden([this] { entladen(); });
}

Knoten Album_Titel_Liste::anordnung() {
    return Spalte({Knoten(Album_Text).zeichen(44), Knoten(Liste).zeichen(44).zeilen(14).dehnen(1, 1),
                   Zeile({Feder(), Knoten(Ok).zeichen(12)})})
        .rand(12 * Twips_je_Pixel);
}

void Album_Titel_Liste::anzeigen(const Album& album) {
    laden();
    Album_Text.beschriftung(tonkartei::Album_Text(album));
    std::vector<Text> zeilen;
    for (int t = 1; t <= album.Titel_Anzahl; ++t) {
        const Album_Lied& titel = album.Lieder[t];
        zeilen.push_back(titel.Artist + " - " + titel.Titel + "  (" + Minuten_Sekunden(titel.Zeit) + ")");
    }
    Liste.setzen(std::move(zeilen));
    zeigen_modal(&Liste);
}

}  // namespace tonkartei
