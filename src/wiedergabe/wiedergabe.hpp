// The playing side without its controls, put together.
#pragma once

#include "datenbank/abr_datei.hpp"
#include "wiedergabe/abspieler.hpp"
#include "wiedergabe/spielzaehlung.hpp"
#include "wiedergabe/takt.hpp"
#include "wiedergabe/winamp/fenstersuche.hpp"
#include "wiedergabe/winamp/winamp.hpp"
#include "wiedergabe/winamp/winamp_optionen.hpp"
#include "wiedergabe/winamp/winamp_programm.hpp"
#include "wiedergabe/winamp/winamp_starter.hpp"
#include "wiedergabe/winamp/winamp_steuerung.hpp"

namespace tonkartei {

struct Haus;

struct Wiedergabe {
    explicit Wiedergabe(Haus& haus);
    Wiedergabe(const Wiedergabe&) = delete;
    Wiedergabe& operator=(const Wiedergabe&) = delete;

    WinAmp_Steuerung Steuerung;
    Fenstersuche Suche;
    WinAmp Spieler;
    WinAmp_Programm Programm;
    WinAmp_Starter Starter;
    tonkartei::Takt Takt;  // ticks when told to start; a start of the player runs it, too
    Spielzählung Zählung;
    tonkartei::Abspieler Abspieler;
    ABR_Datei ABR;
    WinAmp_Optionen Optionen;
};

}  // namespace tonkartei
