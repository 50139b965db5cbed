// The playing side without its controls, put together.
#pragma once

#include "wiedergabe/abr_datei.hpp"
#include "wiedergabe/fenstersuche.hpp"
#include "wiedergabe/spielzaehlung.hpp"
#include "wiedergabe/takt.hpp"
#include "wiedergabe/winamp.hpp"
#include "wiedergabe/winamp_optionen.hpp"
#include "wiedergabe/winamp_programm.hpp"
#include "wiedergabe/winamp_starter.hpp"
#include "wiedergabe/winamp_steuerung.hpp"

namespace tonkartei {

struct Plattform;

struct Wiedergabe {
    Wiedergabe(Modell& modell, Einstellungen& einstellungen, const Plattform& plattform, Kanäle& kanäle, Ansicht& ansicht);
    Wiedergabe(const Wiedergabe&) = delete;
    Wiedergabe& operator=(const Wiedergabe&) = delete;

    Winamp_Steuerung Steuerung;
    Fenstersuche Suche;
    WinAmp Spieler;
    WinAmp_Programm Programm;
    WinAmp_Starter Starter;
    tonkartei::Takt Takt;  // ticks when told to start; a start of the player runs it, too
    Spielzählung Zählung;
    ABR_Datei ABR;
    WinAmp_Optionen Optionen;
};

}  // namespace tonkartei
