// The buttons that start fades and the two times that fades go by.
#pragma once

#include "grundlagen/zahl.hpp"
#include "oberflaeche/anordnung.hpp"
#include "oberflaeche/elementreihe.hpp"

namespace tonkartei {

struct Fadetafel {
    explicit Fadetafel(Fenster& fenster);
    Fadetafel(const Fadetafel&) = delete;
    Fadetafel& operator=(const Fadetafel&) = delete;

    // 1 to 2, 2 to 1, 3 to 4, 4 to 3, upper pair to lower, lower to upper.
    Elementreihe<Knopf, 6> Start_Fade;
    // Of crossfader 1, 2 and the one between the pairs.
    Elementreihe<Knopf, 3> Start_Center;
    Knopf Start_Automatik;
    Schriftfeld Fadezeit_Label1, Fadezeit, Fadezeit_Label2;
    Regler Fadezeit_Scroll;
    Schriftfeld Autozeit_Label1, Autozeit, Autozeit_Label2;
    Regler Autozeit_Scroll;

    // For the opening of the window: 5 and 13 seconds.
    void beginnen();
    Knoten Zeiten_anordnung();
    // Seconds of such a caption; the captions are what counts.
    static Long Sekunden(const Schriftfeld& feld) { return gerundet(Zahlwert(feld.beschriftung())); }

private:
    void Fadezeit_geändert();
    void Autozeit_geändert();

    Ansicht& ansicht_;
};

}  // namespace tonkartei
