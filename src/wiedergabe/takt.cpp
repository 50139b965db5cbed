#include "wiedergabe/takt.hpp"

#include "wiedergabe/winamp/winamp.hpp"

namespace tonkartei {

Takt::Takt(Ansicht& ansicht, WinAmp& winamp) : Timer(ansicht, [this] { Timer_Timer(); }), winamp_(winamp) {}

void Takt::Timer_Timer() {
    winamp_.nachsehen();
    Autoplay_Schritt();
    Anzeige_Schritt();
}

}  // namespace tonkartei
