// The player on the session's bus, so that media keys and panels can stop what plays when the program is gone: it speaks
// while the program does not, and what it is asked comes to the player as it comes from the program.
#pragma once

#include <poll.h>

#include <chrono>
#include <memory>

#include "grundlagen/text.hpp"

struct sd_bus;

namespace tonkartei::spieler {

class Spieler;

class Medienbus {
public:
    using Uhr = std::chrono::steady_clock;

    // Nothing where there is no bus; nothing here waits.
    explicit Medienbus(Spieler& spieler);
    ~Medienbus();
    Medienbus(const Medienbus&) = delete;
    Medienbus& operator=(const Medienbus&) = delete;

    // What the loop has to watch, and the moment until which it may sleep.
    pollfd Wache() const;
    Uhr::time_point spätestens() const;
    // Does what has come, and tells what is new with the player.
    void bedienen();

    // Of the program's name on the bus.
    void Programm_da(bool da);

private:
    struct Stand {
        int Status = 0, Lautstärke = 0;
        long Länge = 0;
        Text Datei, Titel;
        bool operator==(const Stand&) const = default;
    };
    struct Freigabe {
        void operator()(sd_bus* bus) const;
    };
    void einrichten();
    Stand jetzt() const;

    Spieler& spieler_;
    std::unique_ptr<sd_bus, Freigabe> bus_;
    const Text name_;
    bool spricht_ = false;
    Stand gemeldet_;
};

}  // namespace tonkartei::spieler
