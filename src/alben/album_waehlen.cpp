#include "alben/album_waehlen.hpp"

#include <algorithm>

#include "oberflaeche/ansicht.hpp"

namespace tonkartei {

Album_wählen::Album_wählen(Ansicht& ansicht, const Alben& alben)
    : Wartedialog(ansicht, "Album_wählen", "Album wählen"), alben_(alben) {
    Vorgabeknopf = &Ok;
    Abbruchknopf = &Abbruch;
    Liste.tooltip("Die Alben der Datenbank");
    Liste.Doppelklick.verbinden([this] { bestätigen(); });
    Ok.Klick.verbinden([this] { bestätigen(); });
    Abbruch.Klick.verbinden([this] { entladen(); });
}

Knoten Album_wählen::anordnung() {
    return Spalte({Liste_Text, Knoten(Liste).zeilen(16).zeichen(44).dehnen(1, 1), Zeile({Feder(), Ok, Abbruch})}).rand(180);
}

void Album_wählen::Liste_füllen() {
    struct Eintrag {
        Text schlüssel, zeile;
        Long nummer;
    };
    std::vector<Eintrag> einträge;
    for (Long n = 1; n <= alben_.eigene.Anzahl; ++n) {
        Text zeile = Album_Text(alben_.eigene.Alben[n]);
        Text schlüssel = Sortierschlüssel(zeile);
        einträge.push_back({std::move(schlüssel), std::move(zeile), n});
    }
    std::stable_sort(einträge.begin(), einträge.end(),
                     [](const Eintrag& a, const Eintrag& b) { return a.schlüssel < b.schlüssel; });
    std::vector<Text> zeilen;
    nummern_.clear();
    for (Eintrag& eintrag : einträge) {
        zeilen.push_back(std::move(eintrag.zeile));
        nummern_.push_back(eintrag.nummer);
    }
    Liste.setzen(std::move(zeilen));
}

void Album_wählen::bestätigen() {
    if (Liste.gewählt() >= 0) antworten(nummern_[static_cast<std::size_t>(Liste.gewählt())]);
    entladen();
}

Long Album_wählen::wählen() {
    return modal_fragen([this] { Liste_füllen(); }, Liste).value_or(0);
}

}  // namespace tonkartei
