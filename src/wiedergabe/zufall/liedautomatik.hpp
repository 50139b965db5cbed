// What decides which song comes next, put together: above the list, unlike the rest of the playing side.
#pragma once

#include "wiedergabe/liedstart.hpp"
#include "wiedergabe/zufall/autoplay.hpp"
#include "wiedergabe/zufall/kategoriewechsel.hpp"
#include "wiedergabe/zufall/listenfolge.hpp"
#include "wiedergabe/zufall/zufalls_playlist.hpp"
#include "wiedergabe/zufall/zufallslied.hpp"
#include "wiedergabe/zufall/zufallsoptionen.hpp"

namespace tonkartei {

struct Plattform;
struct Wiedergabe;

struct Liedautomatik {
    Liedautomatik(Modell& modell, Einstellungen& einstellungen, const Plattform& plattform, Ansicht& ansicht,
                  Wiedergabe& wiedergabe, Listenbereich& lieder, Kategorienbereich& kategorien, Wiedergabebereich& bereich);
    Liedautomatik(const Liedautomatik&) = delete;
    Liedautomatik& operator=(const Liedautomatik&) = delete;

    Listenfolge Folge;
    Zufallslied Zufall;
    Liedstart Start;
    Kategoriewechsel Wechsel;
    tonkartei::Autoplay Autoplay;
    Zufalls_Playlist Zufallsliste;
    Zufallsoptionen Optionen;
};

}  // namespace tonkartei
