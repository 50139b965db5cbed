#include "austausch/liedvergleich.hpp"

#include <algorithm>

#include "oberflaeche/fortschritt.hpp"
#include "plattform/dateisystem.hpp"

namespace tonkartei {

std::vector<Zeitpunkt> eigene_Dateizeiten(const Modell& modell, Dateisystem& dateien, Fortschritts_Fenster& fortschritt,
                                          bool Fehlende_erlaubt) {
    const Fortschritts_Ende ende(fortschritt);
    fortschritt.Text_setzen("Erstellungsdatum der MP3-Dateien einlesen...");
    std::vector<Zeitpunkt> zeiten;
    for (Long nr = 1; nr <= modell.Anzahl_Lieder; ++nr) {
        const Text pfad = modell.Lied_Pfad(nr);
        const auto zeit = dateien.Änderungszeit(pfad);
        if (!zeit && !Fehlende_erlaubt) throw Dateifehler(53, pfad);
        zeiten.push_back(zeit.value_or(Zeitpunkt{}));
        fortschritt.anzeigen(Prozent(nr, modell.Anzahl_Lieder));
    }
    return zeiten;
}

Liedvergleich::Liedvergleich(const Bestand& eigene, const std::vector<Zeitpunkt>& daten) : eigene_(eigene), daten_(daten) {
    for (Long nr = 1; nr <= eigene.Anzahl_Lieder; ++nr) {
        const Lied& lied = eigene.Lieder[nr];
        nach_Namen_.try_emplace({lied.Artist, lied.Titel}, nr);
        nach_Datei_.try_emplace({lied.Größe, daten[static_cast<std::size_t>(nr - 1)]}, nr);
    }
}

Liedvergleich::Treffer Liedvergleich::vergleichen(std::string_view Artist, std::string_view Titel, Long Größe,
                                                  const Zeitpunkt& Datum) const {
    const Long keiner = eigene_.Anzahl_Lieder + 1;
    const auto name = nach_Namen_.find({Artist, Titel});
    const auto datei = nach_Datei_.find({Größe, Datum});
    const Long nr =
        std::min(name == nach_Namen_.end() ? keiner : name->second, datei == nach_Datei_.end() ? keiner : datei->second);
    if (nr == keiner) return {keiner, 0};
    // The song found by one of the two likenesses may share the other as well.
    const Lied& lied = eigene_.Lieder[nr];
    const bool gleicher_Name = lied.Artist == Artist && lied.Titel == Titel;
    const bool gleiche_Datei = lied.Größe == Größe && daten_[static_cast<std::size_t>(nr - 1)] == Datum;
    return {nr, (gleicher_Name ? 1 : 0) + (gleiche_Datei ? 1 : 0)};
}

}  // namespace tonkartei
