// The player's window on the desktop: a listening socket whose name is the handle. It keeps what a window keeps (place,
// visibility, parent, long values) and hands messages to its procedure. Nothing that comes in can block it: all sockets are
// non-blocking, every connection has its turn, and whoever breaks the protocol or does not take answers is dropped.
#pragma once

#include <poll.h>

#include <chrono>
#include <map>
#include <string>
#include <vector>

#include "plattform/fenstersystem.hpp"
#include "plattform/linux/deskriptor.hpp"
#include "plattform/linux/fenster_protokoll.hpp"
#include "spieler/fensterprozedur.hpp"

namespace tonkartei::spieler {

class Fenster {
public:
    using Uhr = std::chrono::steady_clock;

    // Appears on the desktop; throws std::runtime_error when that cannot be.
    Fenster(Text klasse, Fensterprozedur& prozedur);
    ~Fenster() { verschwinden(); }
    Fenster(const Fenster&) = delete;
    Fenster& operator=(const Fenster&) = delete;

    Hwnd Griff() const noexcept { return griff_; }
    bool offen() const noexcept { return static_cast<bool>(empfang_); }

    // What the loop has to watch, appended to `liste`; the moment until which it may sleep.
    void anmelden(std::vector<pollfd>& liste) const;
    Uhr::time_point spätestens() const;
    // Serves what the poll has found. `liste` as filled by anmelden().
    void bedienen(const std::vector<pollfd>& liste);

    // Leaves the desktop. All connections end but that of the sender who is being answered.
    void verschwinden();

private:
    struct Verbindung {
        Deskriptor Socket;
        bool gegrüßt = false;
        Uhr::time_point Zuletzt;  // of the last packet; the arrival at first
    };

    void erscheinen();
    void annehmen();
    void Platz_schaffen();
    // False when the connection has to end.
    bool lesen(Verbindung& verbindung);
    bool beantworten(Verbindung& verbindung, const protokoll::Anfrage& anfrage, std::string_view anhang);
    void Lage_setzen(const protokoll::Anfrage& anfrage);

    const Text klasse_;
    Fensterprozedur& prozedur_;
    Deskriptor ordner_, empfang_;
    Hwnd griff_ = 0;
    Uhr::time_point annahme_ruht_bis_{};
    std::vector<Verbindung> verbindungen_;

    Rechteck lage_{0, 0, 275, 116};
    bool sichtbar_ = true;
    Hwnd elter_;
    std::map<std::int32_t, std::int32_t> fensterwerte_;
};

}  // namespace tonkartei::spieler
