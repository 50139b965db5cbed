// The connections to the windows of other processes: sockets in the desktop's folder (schreibtisch.hpp). One is kept open
// for every window, so that its death shows without asking it; a look at the desktop is one directory read and one poll.
#pragma once

#include <chrono>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "plattform/fenstersystem.hpp"
#include "plattform/linux/deskriptor.hpp"
#include "plattform/linux/fenster_protokoll.hpp"

namespace tonkartei {

class Fensterleitungen {
public:
    struct Rückgabe {
        protokoll::Antwort Antwort;
        std::string Anhang;
    };

    // `frist`: how long an answer may take. A process that let it pass once is waited for only briefly until it answers
    // again; a socket that does not introduce itself in time is no window until it does.
    explicit Fensterleitungen(std::chrono::milliseconds frist) : frist_(frist) {}

    // Finds what has come and what has gone.
    void schauen();
    // None when the window is gone, or has not answered in time and is still `da`.
    std::optional<Rückgabe> fragen(Hwnd fenster, protokoll::Anfrage anfrage, std::string_view anhang = {});
    bool da(Hwnd fenster) const;
    // Looks for the window if it is not known yet.
    std::optional<Text> Klasse(Hwnd fenster);
    // In window order, as of the last look; 0 behind the last one and behind what is none. Behind 0 comes the first.
    Hwnd nächstes(Hwnd nach) const;

private:
    using Uhr = std::chrono::steady_clock;

    struct Eintrag {
        Deskriptor Verbindung;
        std::uint64_t Inode = 0;
        Text Klasse;
        bool angemeldet = false;  // has told its handle and class: a window
        bool hängt = false;       // owes an answer
        Uhr::time_point Nächster_Versuch{};
    };
    void Ordner_lesen(const Deskriptor& ordner);
    void Lebende_prüfen();
    void verbinden(const Deskriptor& ordner, Hwnd griff, Eintrag& eintrag);
    void Anmeldungen_abwarten();
    // Takes what has arrived. False when the other end is gone or talks rubbish; the connection is closed then.
    bool abholen(Hwnd griff, Eintrag& eintrag);
    static void trennen(Eintrag& eintrag, bool Unsinn);
    Eintrag* Fenster_zu(Hwnd fenster);
    std::optional<Rückgabe> Antwort_abwarten(Eintrag& eintrag, std::uint32_t folge);

    const std::chrono::milliseconds frist_;
    std::map<Hwnd, Eintrag> einträge_;  // by handle, which is window order
    std::uint32_t folge_ = 0;
};

}  // namespace tonkartei
