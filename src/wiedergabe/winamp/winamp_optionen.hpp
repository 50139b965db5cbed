// The menu commands that switch the settings of the player and of the counting. The caller's check marks follow `geändert`.
#pragma once

#include "grundlagen/ereignis.hpp"

namespace tonkartei {

class Ansicht;
class WinAmp;
class WinAmp_Programm;
struct Einstellungen;

class WinAmp_Optionen {
public:
    WinAmp_Optionen(Einstellungen& einstellungen, Ansicht& ansicht, WinAmp& winamp, const WinAmp_Programm& programm);

    void Menü_WinAmp_verstecken();
    void Winamp_Mini_verstecken();
    void WinAmp_FS_Lautstärke();
    // Entry 1 to 4, which is the closing rule.
    void Menü_WinAmp_Beenden(int n);
    void WinAmp_Verzeichnis_wählen();
    void Zeit_Anzahl();

    // A setting was changed by one of the commands.
    Ereignis<> geändert;

private:
    void umschalten(bool& einstellung);

    Einstellungen& einstellungen_;
    Ansicht& ansicht_;
    WinAmp& winamp_;
    const WinAmp_Programm& programm_;
};

}  // namespace tonkartei
