#include "dj/alt/kidnap.hpp"

namespace tonkartei {
namespace {

// Places of a window's values.
constexpr int GWL_STYLE = -16, GWL_EXSTYLE = -20;

}  // namespace

void Kidnap::Kidnap_leeren() {
    for (int i = 1; i <= Fenster_maximal; ++i) Gekaperte_Fenster[i].aktiv = false;
}

void Kidnap::Fenster_zurückgeben(int Index) {
    Gekapertes& eintrag = Gekaperte_Fenster[Index];
    if (!eintrag.aktiv) return;
    system_.SetParent(eintrag.Fenster, eintrag.Elter);
    system_.SetWindowLongA(eintrag.Fenster, GWL_STYLE, eintrag.Stil);
    system_.SetWindowLongA(eintrag.Fenster, GWL_EXSTYLE, eintrag.erweiterter_Stil);
    eintrag.aktiv = false;
}

void Kidnap::alle_Fenster_zurückgeben() {
    for (int i = 1; i <= Fenster_maximal; ++i) Fenster_zurückgeben(i);
}

}  // namespace tonkartei
