// The starting of the player, alone or with a file or a list. Every song is started this way, whether a player runs or not:
// the new process hands its parameter over to the running one of its class.
#pragma once

#include "grundlagen/ereignis.hpp"
#include "grundlagen/text.hpp"
#include "wiedergabe/winamp/startmeldung.hpp"

namespace tonkartei {

class Dateisystem;
class WinAmp;
class WinAmp_Programm;

class WinAmp_Starter {
public:
    WinAmp_Starter(Dateisystem& dateien, Ansicht& ansicht, WinAmp& winamp, WinAmp_Programm& programm);

    // False after an error that the user has been told of. Blocks for a second.
    bool starte_WinAmp(const Text& Parameter);
    // A missing file starts nothing and gives false; on purpose no box appears, unless another start is under way around it.
    bool starte_WinAmp_Datei(const Text& Datei);
    // A list file; whether it worked does not matter to anyone.
    void starte_WinAmp_Liste(const Text& Datei);

    // The main timer's tick, once and at once, after the process was given its second.
    Ereignis<> Takt;
    // A list was handed over: the place to put the focus back into the quick search.
    Ereignis<> Liste_gestartet;

private:
    Dateisystem& dateien_;
    Ansicht& ansicht_;
    WinAmp& winamp_;
    WinAmp_Programm& programm_;
    Startmeldung Meldung_;
};

}  // namespace tonkartei
