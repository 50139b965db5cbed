// Players on a desktop that belongs to one scene.
#pragma once

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <csignal>
#include <cstring>
#include <filesystem>

#include "testordner.hpp"

namespace tonkartei {

inline constexpr bool eigener_Schreibtisch = true;

// The last class that a process was started with.
inline std::string Klasse_von(pid_t prozess) {
    std::ifstream strom("/proc/" + std::to_string(prozess) + "/cmdline");
    std::string klasse;
    for (std::string argument; std::getline(strom, argument, '\0');)
        if (argument.starts_with("/CLASS=")) klasse = argument.substr(7);
    std::erase(klasse, '"');
    return klasse;
}

// How many there were.
inline int Spieler_töten(const Testordner& ordner, const std::string& klasse) {
    int getötet = 0;
    for (const auto& eintrag : std::filesystem::directory_iterator(ordner.pfad("lauf/tonkartei/fenster/"))) {
        const int s = ::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0);
        sockaddr_un adresse{};
        adresse.sun_family = AF_UNIX;
        std::strncpy(adresse.sun_path, eintrag.path().c_str(), sizeof(adresse.sun_path) - 1);
        ucred wer{};
        socklen_t länge = sizeof(wer);
        if (::connect(s, reinterpret_cast<sockaddr*>(&adresse), sizeof(adresse)) == 0 &&
            ::getsockopt(s, SOL_SOCKET, SO_PEERCRED, &wer, &länge) == 0 && Klasse_von(wer.pid) == klasse &&
            ::kill(wer.pid, SIGKILL) == 0)
            ++getötet;
        ::close(s);
    }
    return getötet;
}

// The player of this build in a folder of the user's.
inline void Spieler_hinlegen(const std::string& ordner) {
    std::filesystem::create_symlink(TONKARTEI_SPIELER, ordner + "WinAmp.Exe");
}

}  // namespace tonkartei
