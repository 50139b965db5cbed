// The desktop: a private folder in which every window of another process is a Unix socket. A socket's name is the window's
// handle in decimal; handles grow and are not given out twice, so their order is the order of appearance. Names of any
// other form are no windows.
#pragma once

#include <sys/un.h>

#include <cstdint>
#include <map>
#include <optional>

#include "plattform/fenstersystem.hpp"
#include "plattform/linux/deskriptor.hpp"

namespace tonkartei::schreibtisch {

inline constexpr Hwnd Griff = 1;  // the desktop's own handle
inline constexpr Hwnd Erster_Fenstergriff = 100;

// The folder, opened; an empty descriptor when there is none, or when it is not ours (other owner, a link). Rights that it
// gives to others are taken back. With `anlegen` it is made if missing.
Deskriptor öffnen(bool anlegen);

// The handle that a socket's name stands for.
std::optional<Hwnd> Griff_aus(const char* name);

// The folder's sockets that bear a handle's name, living or not: handle and inode, in window order.
std::map<Hwnd, std::uint64_t> Fenster(const Deskriptor& ordner);

// Address of an entry of the folder. It goes by way of the open folder, so its length does not depend on where the folder
// lies (a socket's address holds 107 bytes only).
sockaddr_un Adresse(const Deskriptor& ordner, const Text& name);

// True when the process at the other end runs under the same user.
bool eigener_Benutzer(int fd);

}  // namespace tonkartei::schreibtisch
