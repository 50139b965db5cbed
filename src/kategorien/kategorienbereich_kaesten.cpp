// The boxes of the categories: how one follows from the other, by hand and by the automatic change.
#include "grundlagen/waehrend.hpp"
#include "kategorien/kategorienbereich.hpp"

namespace tonkartei {

void Kategorienbereich::setzte_Startkategorien() {
    if (!einstellungen_.Kategorien_merken) return;
    von_anderswo_gesetzt();
    {
        const Während stille(Kategorie_Ereignisse_an_, false);
        for (int k = 1; k <= modell_.Anzahl_Kategorien; ++k)
            zeige_Kategorie(k).wert((static_cast<std::uint32_t>(einstellungen_.Kategorien) >> (k - 1) & 1U) != 0);
    }
    Auswahl_geändert();
}

Long Kategorienbereich::Kategorien_Maske() const {
    Long maske = 0;
    for (int k = 1; k <= modell_.Anzahl_Kategorien; ++k)
        if (zeige_Kategorie(k).wert()) maske += Long{1} << (k - 1);
    return maske;
}

void Kategorienbereich::Kasten_geändert(int k) {
    if (k < 1 || k > modell_.Anzahl_Kategorien) return;
    melden();
    if (Kategorie_Ereignisse_an_ && !Kategorie_intern && Auto_Wechsel_an()) {
        Auto_Wechsel_beenden();
        Pool_zeigen(k);
    }
    {
        const Während stille(Kategorie_Ereignisse_an_, false);
        if (zeige_Kategorie(k).wert()) {
            if (k == 1) {
                for (int anderer = 2; anderer <= Kategorien_maximal; ++anderer) zeige_Kategorie(anderer).wert(false);
            } else {
                zeige_Kategorie(1).wert(false);
            }
        }
    }
    if (!Kategorie_Ereignisse_an_) return;
    Auswahl_geändert();
    Suche_fokussieren();
}

void Kategorienbereich::Pool_übernehmen() {
    {
        const Während stille(Kategorie_Ereignisse_an_, false);
        const Während intern(Kategorie_intern);
        for (int k = 2; k <= modell_.Anzahl_Kategorien; ++k) {
            Auto_Wechsel_Kategorie[k] = zeige_Kategorie(1).wert() || zeige_Kategorie(k).wert();
            zeige_Kategorie(k).wert(false);
        }
    }
    zeige_Kategorie_Farben();
}

// The boxes as the categories of the automatic change, as if the user had changed box k there.
void Kategorienbereich::Pool_zeigen(int k) {
    const Während stille(Kategorie_Ereignisse_an_, false);
    for (int i = 1; i <= Kategorien_maximal; ++i)
        if (i != k) zeige_Kategorie(i).wert(Auto_Wechsel_Kategorie[i]);
    zeige_Kategorie(k).wert(!Auto_Wechsel_Kategorie[k]);
}

void Kategorienbereich::Rechtsklick_auf_Kasten(int k) {
    if (k > modell_.Anzahl_Kategorien) return;
    if (Auto_Wechsel_an() && !Kategorie_intern) {
        if (k != 1) {
            Auto_Wechsel_Kategorie[k] = !Auto_Wechsel_Kategorie[k];
        } else {
            for (int i = 1; i <= modell_.Anzahl_Kategorien; ++i) Auto_Wechsel_Kategorie[i] = i > 1;
        }
        zeige_Kategorie_Farben();
        return;
    }
    if (einstellungen_.Kategorie_Rechtsklick == 1) {
        nur_oder_alle_anderen(k);
        Auswahl_geändert();
        Suche_fokussieren();
    } else if (einstellungen_.Kategorie_Rechtsklick == 2 && Lied_Kategorie.aktiv()) {
        Lied_Kategorie.wähle(k - 1);
    }
}

// The same right click toggles between this category alone and all but this one (and never box 1 with others).
void Kategorienbereich::nur_oder_alle_anderen(int k) {
    const Während stille(Kategorie_Ereignisse_an_, false);
    const bool war_gewählt = zeige_Kategorie(k).wert();
    for (int i = 2; i <= modell_.Anzahl_Kategorien; ++i) zeige_Kategorie(i).wert(war_gewählt && i != k);
    zeige_Kategorie(1).wert(false);
    zeige_Kategorie(k).wert(!war_gewählt);
}

}  // namespace tonkartei
