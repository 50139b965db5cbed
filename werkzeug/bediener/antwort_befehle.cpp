#include <algorithm>

#include "bediener/ansicht_bediener.hpp"
#include "bediener/befehle.hpp"
#include "bediener/maschine.hpp"

namespace tonkartei {
namespace {

using Art = Wartestand::Art;

void Pfad_prüfen(Dateisystem& dateien, const Wartestand& stand, const Text& pfad) {
    if (pfad.empty()) throw Befehlsfehler("es fehlt: Pfad");
    if (stand.art == Art::Ordner) {
        if (!dateien.Ordner_da(pfad)) throw Befehlsfehler("kein solcher Ordner: " + pfad);
        return;
    }
    const bool speichern = stand.dateiwahl->speichern;
    if (!speichern && stand.dateiwahl->muss_existieren && !dateien.Datei_da(pfad))
        throw Befehlsfehler("keine solche Datei: " + pfad);
    const Text ordner = Ordner_von(pfad);
    if (speichern && !ordner.empty() && !dateien.Ordner_da(ordner)) throw Befehlsfehler("kein solcher Ordner: " + ordner);
}

}  // namespace

void Antwortbefehle_eintragen(Befehlstafel& tafel, Ansicht_Bediener& ansicht, Maschine& maschine) {
    const auto Stand_von = [&ansicht](std::initializer_list<Art> arten) -> Wartestand& {
        Wartestand& stand = ansicht.Stand();
        if (std::find(arten.begin(), arten.end(), stand.art) == arten.end())
            throw Befehlsfehler("darauf wartet das Programm nicht");
        return stand;
    };
    tafel["antwort"] = [Stand_von](Befehlszeile& z) {
        Wartestand& stand = Stand_von({Art::Meldung});
        const Text name = z.nächstes("Knopf");
        z.zu_Ende();
        const auto antwort = Antwort_von(name);
        const auto angeboten = Antworten_von(*stand.feld);
        if (!antwort || std::find(angeboten.begin(), angeboten.end(), *antwort) == angeboten.end())
            throw Befehlsfehler("kein solcher Knopf: " + name);
        stand.antwort = *antwort;
        stand.beantwortet = true;
    };
    tafel["eingabe"] = [Stand_von](Befehlszeile& z) {
        Wartestand& stand = Stand_von({Art::Eingabe});
        stand.text = z.rest();
        stand.beantwortet = true;
    };
    tafel["abbrechen"] = [Stand_von](Befehlszeile& z) {
        Wartestand& stand = Stand_von({Art::Eingabe, Art::Ordner, Art::Datei, Art::Farbwahl});
        z.zu_Ende();
        stand.text.clear();
        stand.farbe.reset();
        stand.beantwortet = true;
    };
    tafel["pfad"] = [Stand_von, &maschine](Befehlszeile& z) {
        Wartestand& stand = Stand_von({Art::Ordner, Art::Datei});
        const Text pfad = z.rest();
        Pfad_prüfen(maschine.plattform().Dateisystem, stand, pfad);
        stand.text = pfad;
        stand.beantwortet = true;
    };
    tafel["farbe"] = [Stand_von](Befehlszeile& z) {
        Wartestand& stand = Stand_von({Art::Farbwahl});
        const long farbe = z.Zahl("Farbe");
        z.zu_Ende();
        if (farbe < 0 || farbe > 0xFFFFFF) throw Befehlsfehler("keine Farbe: " + std::to_string(farbe));
        stand.farbe = static_cast<Farbe>(farbe);
        stand.beantwortet = true;
    };
}

}  // namespace tonkartei
