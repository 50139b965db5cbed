// The counting of heard songs: a song counts at its start, and the next start takes that back if it came too early.
#pragma once

#include "grundlagen/ereignis.hpp"
#include "grundlagen/feld.hpp"
#include "grundlagen/zahl.hpp"

namespace tonkartei {

class Rechner;
struct Einstellungen;
struct Modell;

inline constexpr int Gespielt_maximal = 100;

// All of it lives as long as the program; another collection leaves it as it is, its numbers then mean other songs.
class Spielzählung {
public:
    Spielzählung(Modell& modell, const Einstellungen& einstellungen, Rechner& rechner);

    // Number of the song that was started last, 0 none in this run.
    Long Letztes_Lied = 0;
    // Second of the day of that start. Without a date: a song from before midnight always counts as started too late.
    long long Letzte_Startzeit = 0;
    // The last starts, oldest first; a song started twice stands twice.
    Long Gespielt_Anzahl = 0;
    Feld<Long, Gespielt_maximal> Gespielt_Liste;

    // As if the last song had been long enough ago; to be called once the settings are read.
    void Startwerte_setzen();
    // The song has been started: it counts, and the one before it no more if that is less than `Anzahl_Zeit` ago.
    void zählen(Long Nr);

    // A song's count has risen: its number, for whoever shows the count.
    Ereignis<Long> gezählt;

private:
    long long Sekunde_des_Tages() const;
    void in_Liste(Long Nr);

    Modell& modell_;
    const Einstellungen& einstellungen_;
    Rechner& rechner_;
};

}  // namespace tonkartei
