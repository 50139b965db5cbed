// What the desktop's media keys, lock screen and panels see of the playing side, and what they ask of it.
#pragma once

#include <cstdint>
#include <functional>

#include "grundlagen/text.hpp"

namespace tonkartei {

struct Medienstand {
    enum class Zustand { gestoppt, spielt, angehalten } zustand = Zustand::gestoppt;
    Text Titel, Artist;
    int Lied = 0;               // another number: another song; 0 none that is known
    std::int64_t Länge = 0;     // milliseconds, 0 unknown
    std::int64_t Position = 0;  // milliseconds, at the moment of telling
    int Lautstärke = 0;         // 0 to 100
    bool kann_weiter = false;   // there is a next song
    bool operator==(const Medienstand&) const = default;
};

struct Medienbefehle {
    std::function<void()> spielen, anhalten, umschalten, stoppen, nächstes, Anfang, zeigen, Ende;
    std::function<void(std::int64_t Millisekunden)> springen;  // to that place of the song
    std::function<void(int Lautstärke)> Lautstärke;
};

}  // namespace tonkartei
