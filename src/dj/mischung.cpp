#include "dj/mischung.hpp"

#include "dj/mischgesetz.hpp"

namespace tonkartei {

Crossfader::Crossfader(Fenster& f, Text name, int index) : Regler(f, std::move(name), 0, Maximum, index) { griffig = true; }

Mischung::Mischung(Fenster& fenster) : Crossfade(fenster, "Crossfade"), Crossfade_OU(fenster, "Crossfade_OU") {
    Crossfade[1].tooltip("Crossfader zwischen Player 1 und 2");
    Crossfade[2].tooltip("Crossfader zwischen Player 3 und 4");
    Crossfade_OU.tooltip("Crossfader zwischen Player 1 und 2 (oben) und Player 3 und 4 (unten)");
    Crossfade_OU.senkrecht = true;
    Crossfade_OU.umgekehrt = true;
    for (int k = 1; k <= 3; ++k)
        Fader(k).Geändert.verbinden([this] {
            if (!still) geändert();
        });
}

Long Mischung::Fader_Anteil(int Fader, int Seite) const {
    return Mischgesetz::Anteil(Seite, Crossfade[Fader].wert(), Crossfader::Maximum);
}

Long Mischung::OU_Anteil(int Paar) const { return Mischgesetz::Anteil(Paar, Crossfade_OU.wert(), Crossfader::Maximum); }

Long Mischung::Gesamt_Anteil(int Player) const {
    if (Player < 1 || Player > 4) return 0;
    const int Paar = (Player + 1) / 2;
    return Mischgesetz::Produkt(Fader_Anteil(Paar, Player - 2 * (Paar - 1)), OU_Anteil(Paar));
}

}  // namespace tonkartei
