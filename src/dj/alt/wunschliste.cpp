#include "dj/alt/wunschliste.hpp"

#include <algorithm>

#include "dj/alt/dj_liste.hpp"
#include "dj/alt/farben.hpp"
#include "dj/striche.hpp"
#include "liste/lieder_liste.hpp"

namespace tonkartei {
namespace {

constexpr const char* Linienmarke = "KL";
constexpr int Stellen = 4;

// Place of the first line with that number; the number of lines when there is none.
int Stelle_von(const Listenfeld& liste, Long Nr) {
    const auto& zeilen = liste.zeilen();
    const auto fund =
        std::find_if(zeilen.begin(), zeilen.end(), [Nr](const Text& zeile) { return Nummer_von(zeile) == Nr; });
    return static_cast<int>(fund - zeilen.begin());
}

}  // namespace

Wunschliste::Wunschliste(Ansicht& ansicht, const Modell& modell, const DJ_Liste& lieder)
    : Fenster(ansicht, "Wunschliste", "gewünschte Lieder"), modell_(modell), lieder_(lieder) {
    hintergrund = Pultgrund;
    for (Listenfeld* helfer : {&Nr_Liste, &Nr_Liste2}) {
        helfer->unsichtbarer_Helfer = true;
        helfer->sichtbar(false);
    }
    Liste.tag("Tonkartei - DJ-Modus (Alt) Wunschliste");
    Liste.Ziehmarke = Liste.tag();
    Liste.Vorlesename = "gewünschte Lieder";
    Liste.tooltip("nimmt Lieder aus der Liste an; auf einen Player gezogen, verlassen sie die Wünsche");
    Position.tooltip("verschiebt das gewählte Lied nach oben oder unten");
    löschen.tooltip("nimmt das gewählte Lied aus den Wünschen");
    alle_löschen.tooltip("leert die Wünsche");
    sortieren.tooltip("ordnet die Wünsche nach ihren Kategorien");
    Liste.Abgelegt.verbinden([this](Element& quelle) {
        if (quelle.tag() != lieder_.Liste.tag()) return;
        const Long nr = lieder_.gewähltes_Lied();
        if (nr < 1) return;
        Nr_Liste.hinzufügen(Zahl_mit_Nullen(nr, Stellen));
        anzeigen();
    });
    Kategorie_Linie.Klick.verbinden([this] { anzeigen(); });
    löschen.Klick.verbinden([this] {
        if (const Long nr = gewähltes_Lied(); nr > 0) Position_löschen(nr);
    });
    alle_löschen.Klick.verbinden([this] { andere_Datenbank(); });
    sortieren.Klick.verbinden([this] { nach_Kategorien_sortieren(); });
    Position.Geändert.verbinden([this] {
        const int stufe = Position.wert();
        if (stufe == Dreistufer::Ruhe) return;
        verschieben(stufe);
        Position.wert(Dreistufer::Ruhe);
    });
}

Knoten Wunschliste::anordnung() {
    return Spalte({Knoten(Liste).zeichen(20).zeilen(8).dehnen(1, 1), Kategorie_Linie,
                   Zeile({Position_Text, Position, Feder()}), Zeile({löschen, alle_löschen, Feder()}),
                   Zeile({sortieren, Feder()})});
}

void Wunschliste::auffrischen() {
    for (int i = Nr_Liste.Anzahl() - 1; i >= 0; --i)
        if (Nummer_von(Nr_Liste.zeile(i)) > modell_.Anzahl_Lieder) Nr_Liste.entfernen(i);
    Linien_machen();
    anzeigen();
}

void Wunschliste::Linien_machen() {
    for (int k = 1; k <= modell_.Anzahl_Kategorien; ++k) {
        const Text name = modell_.Kategorien[k];
        Kategorie_Linien_[k] = Striche(Striche_bis(ansicht(), Liste.breite(), name + "AA", Liste.schrift())) + name;
    }
}

void Wunschliste::anzeigen() {
    std::vector<Text> zeilen, nummern;
    int vorige = 0;
    for (const Text& eintrag : Nr_Liste.zeilen()) {
        const Lied& lied = modell_.Lieder[Nummer_von(eintrag)];
        if (Kategorie_Linie.wert() && lied.Kategorie != vorige) {
            nummern.emplace_back(Linienmarke);
            zeilen.push_back(lied.Kategorie >= 1 && lied.Kategorie <= Kategorien_maximal ? Kategorie_Linien_[lied.Kategorie]
                                                                                         : Text());
        }
        vorige = lied.Kategorie;
        nummern.push_back(eintrag);
        zeilen.push_back(Listenzeile(lied, Sortierung::Artist));
    }
    Liste.setzen(std::move(zeilen));
    Nr_Liste2.setzen(std::move(nummern));
}

Long Wunschliste::gewähltes_Lied() const { return Liste.gewählt() < 0 ? 0 : Nummer_von(Nr_Liste2.zeile(Liste.gewählt())); }

void Wunschliste::Position_löschen(Long Nr) {
    if (Nr_Liste.Anzahl() > 0)
        if (const int stelle = Stelle_von(Nr_Liste, Nr); stelle < Nr_Liste.Anzahl()) Nr_Liste.entfernen(stelle);
    anzeigen();
}

void Wunschliste::andere_Datenbank() {
    Nr_Liste.leeren();
    anzeigen();
}

// Of a song that stands twice the first one moves, whichever was chosen; the choice follows the song.
void Wunschliste::verschieben(int stufe) {
    const Long nr = gewähltes_Lied();
    const int stelle = Stelle_von(Nr_Liste, nr), ziel = stelle + (stufe == Dreistufer::oben_Stufe ? -1 : 1);
    if (nr < 1 || stelle >= Nr_Liste.Anzahl()) return;
    if (ziel >= 0 && ziel < Nr_Liste.Anzahl()) {
        const Text anderer = Nr_Liste.zeile(ziel);
        Nr_Liste.zeile(ziel, Nr_Liste.zeile(stelle));
        Nr_Liste.zeile(stelle, anderer);
        anzeigen();
    }
    if (const int zeile = Stelle_von(Nr_Liste2, nr); zeile < Nr_Liste2.Anzahl()) Liste.wähle(zeile);
}

// Within a category the wished order stays.
void Wunschliste::nach_Kategorien_sortieren() {
    if (Nr_Liste.Anzahl() == 0) return;
    std::vector<Text> wünsche = Nr_Liste.zeilen();
    std::stable_sort(wünsche.begin(), wünsche.end(), [this](const Text& a, const Text& b) {
        return modell_.Lieder[Nummer_von(a)].Kategorie < modell_.Lieder[Nummer_von(b)].Kategorie;
    });
    Nr_Liste.setzen(std::move(wünsche));
    anzeigen();
}

}  // namespace tonkartei
