#include "austausch/aufloesung/kategorie_abgleich.hpp"

#include "austausch/aufloesung/kategorie_vergleich.hpp"
#include "datenbank/datenbank_oeffnen.hpp"
#include "datenbank/quell_datenbank.hpp"
#include "oberflaeche/ansicht.hpp"
#include "plattform/dateisystem.hpp"

namespace tonkartei {
namespace {

constexpr const char* Überschrift = "Kategorien vergleichen mit Datenbank";

}  // namespace

bool Kategorieabgleich::gleiche_Kategorien(const Bestand& quelle) const {
    if (quelle.Anzahl_Kategorien != modell_.Anzahl_Kategorien) return false;
    for (int k = 1; k <= modell_.Anzahl_Kategorien; ++k)
        if (quelle.Kategorien[k] != modell_.Kategorien[k]) return false;
    return true;
}

bool Kategorieabgleich::Kategorie_abgleich() {
    if (!modell_.Datenbank_offen) return false;
    Ansicht& ansicht = fenster_.ansicht();
    const auto sagen = [&](const char* text) {
        ansicht.informieren(Überschrift, text);
        return false;
    };
    sagen("Bitte geben sie das Verzeichnis der Quell-Datenbank an.");
    const Text ordner = mit_Trenner(wahl_.Dialog());
    if (ordner.empty()) return false;
    if (groß(ordner) == groß(modell_.Datenbank_Verzeichnis))
        return sagen("Sie können nicht die Datenbank mit sich selbst vergleichen!");
    if (!leser_.vorhanden(ordner)) return sagen("In dem angegebenem Verzeichnis existiert keine Tonkartei!");
    const auto quelle = leser_.lesen(ordner);
    if (!quelle) return sagen("Es ist ein Fehler beim öffnen der Tonkartei aufgetreten.");
    if (!gleiche_Kategorien(*quelle))
        return sagen(
            "Die Kategorien der beiden Datenbank sind nicht gleich. Bitte passen sie dies an, bevor sie bei den Liedern "
            "einen Kategorie-Vergleich durchführen!");
    std::vector<Kategorie_Unterschied> unterschiede = Kategorien_vergleichen(modell_, *quelle, fortschritt_);
    if (unterschiede.empty()) return sagen("Die Kategorien der Lieder sind identisch!");
    fenster_.anzeigen(std::move(unterschiede));
    return true;
}

}  // namespace tonkartei
