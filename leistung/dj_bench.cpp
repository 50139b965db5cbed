// The DJ desk with 5000 songs and four players: its tick, its search, its header lines.
#include <algorithm>
#include <string>
#include <vector>

#include "alben/albenraum.hpp"
#include "datenbank/datenbankraum.hpp"
#include "dj/djmodus.hpp"
#include "dj/striche.hpp"
#include "echt.hpp"
#include "leistung/verhaeltnis.hpp"
#include "oberflaeche/qt/masse.hpp"
#include "oberflaeche/qt/qt_umgebung.hpp"
#include "probe/probehaus.hpp"
#include "wiedergabe/wiedergabe.hpp"

using namespace tonkartei;

namespace {

struct Pult {
    Pult() {
        Modell& modell = probe.modell;
        modell.Anzahl_Kategorien = Kategorien_maximal;
        for (int k = 1; k <= Kategorien_maximal; ++k) modell.Kategorien[k] = "Kategorie " + std::to_string(k);
        modell.Anzahl_Lieder = Lieder_maximal;
        for (int n = 1; n <= Lieder_maximal; ++n) {
            Lied& lied = modell.Lieder[n];
            lied.Artist = "Some Band With A Name " + std::to_string(n * 7919 % 997);
            lied.Titel = "A title of the usual length no. " + std::to_string(n);
            lied.Kategorie = static_cast<Byte>(1 + n % Kategorien_maximal);
        }
        desk.öffnen({0, 0, 9000, 6000});
        for (int n = 1; n <= 4; ++n) desk.Player[n].zeigen(false);
        for (Long nr = 1; nr <= 200; ++nr) desk.Listen.anhängen(Listen::Wunschliste, nr);
    }

    Probehaus probe;
    Datenbankraum datenbank{probe.haus};
    Albenraum alben{datenbank};
    Wiedergabe wiedergabe{probe.haus};
    DJModus desk{probe.haus, wiedergabe, alben};
};

// What is left for a key stroke that passes everything: the lines, sorted.
std::size_t sortiert(const Modell& modell) {
    std::vector<std::string> zeilen;
    for (Long n = 1; n <= modell.Anzahl_Lieder; ++n)
        zeilen.push_back(modell.Lieder[n].Artist + " - " + modell.Lieder[n].Titel);
    std::sort(zeilen.begin(), zeilen.end());
    return zeilen.front().size();
}

// As the windows measure.
class Gemessene_Ansicht : public Stumme_Ansicht {
public:
    int Textbreite(const Text& text, int punkte) const override { return maße_.Textbreite(text, punkte); }

private:
    Maße maße_;
};

// Milliseconds of the thread, the median of many.
template <class F>
double Millisekunden(F&& tat) {
    std::vector<double> zeiten;
    for (int i = 0; i < 301; ++i) {
        const double anfang = Prozessorzeit();
        tat();
        zeiten.push_back((Prozessorzeit() - anfang) * 1e3);
    }
    std::nth_element(zeiten.begin(), zeiten.begin() + 150, zeiten.end());
    return zeiten[150];
}

}  // namespace

int main(int argc, char** argv) {
    const Qt_Umgebung qt(argc, argv);
    Pult pult;
    Verhältnisse v;
    // The simulated players answer at once: what is left is the tick's own.
    v.Wert("Takt des Pults mit vier Playern", Millisekunden([&] { pult.desk.DJ_Tick(); }), "ms", 2);
    const Gemessene_Ansicht ansicht;
    v.Wert("Kopfzeilen von 20 Kategorien", Millisekunden([&] {
               for (int k = 1; k <= Kategorien_maximal; ++k)
                   Strich_Anzahl(ansicht, 4200, pult.probe.modell.Kategorien[k], 10);
           }),
           "ms", 1);
    v.höchstens(
        "ein Tastendruck in der Suche des Pults", 2, "std::sort dessen, was übrig bleibt",
        [&] {
            pult.desk.Listen.erstelle_Suchliste();
            return pult.desk.Listen.Lieder(Listen::Suchliste).size();
        },
        [&] { return sortiert(pult.probe.modell); });
    return v.Ergebnis();
}
