// The three crossfaders: how much of each player is heard.
#pragma once

#include "grundlagen/ereignis.hpp"
#include "grundlagen/zahl.hpp"
#include "oberflaeche/anordnung.hpp"
#include "oberflaeche/elementreihe.hpp"

namespace tonkartei {

struct Crossfader : Regler {
    static constexpr int Maximum = 100;
    Crossfader(Fenster& f, Text name, int index = ohne_Index);
    void in_die_Mitte() { wert(max() / 2); }
};

class Mischung {
public:
    explicit Mischung(Fenster& fenster);

    // Of the pair 1 and 2, at 0 the first of them full; of the pair 3 and 4.
    Elementreihe<Crossfader, 2> Crossfade;
    // Between the pairs, at 0 the upper one full.
    Crossfader Crossfade_OU;

    // Crossfader 1 to 3; the third is the one between the pairs.
    Crossfader& Fader(int k) { return k == 3 ? Crossfade_OU : Crossfade[k]; }

    // Percent.
    Long Fader_Anteil(int Fader, int Seite) const;
    Long OU_Anteil(int Paar) const;
    Long Gesamt_Anteil(int Player) const;

    // A crossfader stands elsewhere, by hand or by the code; not told while `still` is set.
    Ereignis<> geändert;
    bool still = false;
};

}  // namespace tonkartei
