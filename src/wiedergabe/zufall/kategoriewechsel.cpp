#include "wiedergabe/zufall/kategoriewechsel.hpp"

#include <algorithm>
#include <vector>

#include "datenbank/einstellungen.hpp"
#include "datenbank/modell.hpp"
#include "grundlagen/waehrend.hpp"
#include "kategorien/kategorienbereich.hpp"
#include "oberflaeche/ansicht.hpp"
#include "plattform/rechner.hpp"

namespace tonkartei {

Kategoriewechsel::Kategoriewechsel(const Modell& modell, const Einstellungen& einstellungen, Kategorienbereich& kategorien,
                                   Rechner& rechner, Ansicht& ansicht)
    : modell_(modell), einstellungen_(einstellungen), kategorien_(kategorien), rechner_(rechner), ansicht_(ansicht) {}

void Kategoriewechsel::beginnen() {
    kategorien_.Pool_übernehmen();
    Kategorie_wechseln();
}

void Kategoriewechsel::Lied_vorbei() {
    if (!einstellungen_.auto_Kat_Wechsel_Status) return;
    if (++Lieder_seit_Wechsel < einstellungen_.auto_Kat_Wechsel_Lieder) return;
    Lieder_seit_Wechsel = 0;
    Kategorie_wechseln();
}

int Kategoriewechsel::ziehen() const {
    // As lines of the sorted list, so "10" comes before "2".
    std::vector<Text> zeilen;
    for (int k = 1; k <= Kategorien_maximal; ++k)
        if (kategorien_.Auto_Wechsel_Kategorie[k]) zeilen.push_back(Zahltext(k));
    std::sort(zeilen.begin(), zeilen.end());

    if (zeilen.empty())
        return static_cast<int>(static_cast<float>(modell_.Anzahl_Kategorien - 1) * rechner_.Zufallszahl() + 2.0);
    if (zeilen.size() == 1) return gerundet(Zahlwert(zeilen.front()));
    // Without an end when all of the pool are on show. Events run, so the user can uncheck one; that ends the change.
    for (;;) {
        const auto i = static_cast<std::size_t>(static_cast<float>(zeilen.size()) * rechner_.Zufallszahl());
        const int k = gerundet(Zahlwert(zeilen[std::min(i, zeilen.size() - 1)]));
        if (!kategorien_.zeige_Kategorie(k).wert()) return k;
        ansicht_.Ereignisse_laufen_lassen();
        if (!kategorien_.Auto_Wechsel_an()) return 0;
    }
}

void Kategoriewechsel::Kategorie_wechseln() {
    // The timer runs on during a draw without end: it must not begin another one inside.
    if (zieht_) return;
    int k = 0;
    {
        const Während zug(zieht_);
        k = ziehen();
    }
    if (k < 1) return;
    const Während intern(kategorien_.Kategorie_intern);
    kategorien_.Rechtsklick_auf_Kasten(k);
}

}  // namespace tonkartei
