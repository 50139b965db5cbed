// What decides which song comes next, put together: above the list, unlike the rest of the playing side.
#pragma once

#include "wiedergabe/bereiche.hpp"
#include "wiedergabe/liedstart.hpp"
#include "wiedergabe/zufall/autoplay.hpp"
#include "wiedergabe/zufall/kategoriewechsel.hpp"
#include "wiedergabe/zufall/listenfolge.hpp"
#include "wiedergabe/zufall/zufalls_playlist.hpp"
#include "wiedergabe/zufall/zufallslied.hpp"
#include "wiedergabe/zufall/zufallsoptionen.hpp"

namespace tonkartei {

class Album_Start;
struct Haus;
struct Wiedergabe;

struct Liedautomatik {
    Liedautomatik(Haus& haus, Album_Start& listenstart, Wiedergabe& wiedergabe, const Bereiche& bereiche);
    Liedautomatik(const Liedautomatik&) = delete;
    Liedautomatik& operator=(const Liedautomatik&) = delete;

    Listenfolge Folge;
    Zufallslied Zufall;
    Liedstart Start;
    Kategoriewechsel Wechsel;
    tonkartei::Autoplay Autoplay;
    tonkartei::Zufalls_Playlist Zufalls_Playlist;
    Zufallsoptionen Optionen;
};

}  // namespace tonkartei
