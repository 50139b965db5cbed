#include "oberflaeche/fortschritt.hpp"

#include <algorithm>

#include "oberflaeche/ansicht.hpp"

namespace tonkartei {

Fortschritts_Fenster::Fortschritts_Fenster(Ansicht& ansicht) : Fenster(ansicht, "Fortschritts_Fenster", "Tonkartei") {
    größenveränderlich = false;
    Fortschritt.Vorlesename = "Fortschritt";
}

Knoten Fortschritts_Fenster::anordnung() {
    return Spalte({Knoten(Text_).zeichen(40), Knoten(Fortschritt).dehnen(1)}).rand(180);
}

void Fortschritts_Fenster::Text_setzen(const Text& text) {
    aufgabe_ = text;
    Text_.beschriftung(text);
    titel(text);
}

void Fortschritts_Fenster::anzeigen(int Prozent) {
    Prozent = std::clamp(Prozent, 0, 100);
    if (Prozent == 100) Anlauf = 0;
    if (Prozent == gezeigt_) return;
    gezeigt_ = Prozent;
    if (Prozent == 100) {
        const bool war_zu_sehen = sichtbar();
        Fortschritt.wert(100);
        verstecken();
        if (war_zu_sehen) ansicht().Fortschritt_beendet(aufgabe_, Prozent);
        return;
    }
    if (!sichtbar()) {
        zeigen();
        Text_.beschriftung(aufgabe_);
        titel(aufgabe_);
    }
    Fortschritt.wert(Prozent);
    malen();
}

// The user's close box must not take the window from a job that is under way.
bool Fortschritts_Fenster::beim_Schließen(Schließgrund grund) { return grund != Schließgrund::Hand; }

}  // namespace tonkartei
