#include "austausch/abgleich/abgleichslauf.hpp"

#include <set>
#include <utility>

#include "austausch/abgleich/ignorieren_liste.hpp"
#include "austausch/abgleich/la_ignorieren.hpp"
#include "austausch/abgleich/live_abgleich.hpp"
#include "austausch/liedvergleich.hpp"
#include "datenbank/quell_datenbank.hpp"
#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/fortschritt.hpp"
#include "plattform/dateisystem.hpp"

namespace tonkartei {
namespace {

// The first box has its letters in another order, ever since.
constexpr const char* Titel_der_Wahl = "Live ablgeich mit Datenbank";
constexpr const char* Überschrift = "Live abgleich mit Datenbank";

}  // namespace

void Abgleichslauf::Menü_Live_abgleich() {
    if (!modell_.Datenbank_offen) return;
    fenster_.entladen();
    Abgleichsquelle quelle;
    if (!wählen(quelle.Verzeichnis)) return;
    auto bestand = leser_.lesen(quelle.Verzeichnis);
    if (!bestand) {
        fenster_.ansicht().informieren(Überschrift, "Es ist ein Fehler beim öffnen der Tonkartei aufgetreten.");
        return;
    }
    for (int k = 1; k <= bestand->Anzahl_Kategorien; ++k) quelle.Kategorien.push_back(bestand->Kategorien[k]);
    for (Long nr = 1; nr <= bestand->Anzahl_Lieder; ++nr) quelle.Lieder.push_back(std::move(bestand->Lieder[nr]));
    Vergleichsergebnisse ergebnisse = vergleichen(quelle);
    if (ergebnisse.fehlende.empty() && ergebnisse.andere.empty()) {
        fenster_.ansicht().informieren(Überschrift, "Die beiden Datenbanken scheinen identisch zu seien.");
        return;
    }
    fenster_.zeigen(std::move(quelle), std::move(ergebnisse));
}

// True with a folder that holds another collection.
bool Abgleichslauf::wählen(Text& Ordner) {
    Ansicht& ansicht = fenster_.ansicht();
    ansicht.informieren(Titel_der_Wahl, "Bitte geben sie das Verzeichnis der Quell-Datenbank an.");
    Ordner = mit_Trenner(ansicht.Verzeichnis_wählen("Verzeichnis der Quell-Datenbank:"));
    if (Ordner.empty()) return false;
    if (Ordner == modell_.Datenbank_Verzeichnis) {
        ansicht.informieren(Überschrift, "Sie können nicht die Datenbank mit sich selbst vergleichen!");
        return false;
    }
    if (!leser_.vorhanden(Ordner)) {
        ansicht.informieren(Überschrift, "In dem angegebenem Verzeichnis existiert keine Tonkartei!");
        return false;
    }
    return true;
}

Vergleichsergebnisse Abgleichslauf::vergleichen(const Abgleichsquelle& quelle) {
    // Without a list that can be read nothing is passed over.
    std::set<std::pair<Text, Text>> ignorierte;
    Ignorieren_Liste& liste = fenster_.Ignorierte();
    if (liste.geladen_oder_gelesen())
        for (const auto& eintrag : liste.Einträge()) ignorierte.emplace(eintrag.Artist, eintrag.Titel);

    const std::vector<Zeitpunkt> daten = eigene_Dateizeiten(modell_, dateien_, fortschritt_, true);
    const Liedvergleich vergleich(modell_, daten);
    const Fortschritts_Ende ende(fortschritt_);
    fortschritt_.Text_setzen("Datenbanken vergleichen...");
    Vergleichsergebnisse ergebnisse;
    const auto anzahl = static_cast<Long>(quelle.Lieder.size());
    for (Long nr = 1; nr <= anzahl; ++nr) {
        const Lied& lied = quelle.Lieder[static_cast<std::size_t>(nr - 1)];
        const Zeitpunkt datum = dateien_.Änderungszeit(quelle.Verzeichnis + Lied_Dateiname(nr)).value_or(Zeitpunkt{});
        const auto treffer = vergleich.vergleichen(lied.Artist, lied.Titel, lied.Größe, datum);
        if (treffer.Grad == 2)
            ++ergebnisse.gleiche;
        else if (!ignorierte.contains({lied.Artist, lied.Titel}))
            (treffer.Grad == 1 ? ergebnisse.andere : ergebnisse.fehlende)
                .push_back(Vergleichszeile(nr, treffer.Nr, lied.Artist, lied.Titel));
        fortschritt_.anzeigen(Prozent(nr, anzahl));
    }
    return ergebnisse;
}

}  // namespace tonkartei
