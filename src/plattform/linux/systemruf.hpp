// Small helpers around system calls, shared by the files of this folder.
#pragma once

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <ctime>

#include "grundlagen/fehler.hpp"
#include "grundlagen/text.hpp"
#include "grundlagen/zeit.hpp"
#include "plattform/linux/deskriptor.hpp"

namespace tonkartei {

static_assert(sizeof(off_t) == 8, "files beyond 2 GB need 64-bit offsets");

// A call that answers -1 with EINTR is made again.
template <class Ruf>
auto ungestört(Ruf ruf) {
    auto ergebnis = ruf();
    while (ergebnis == -1 && errno == EINTR) ergebnis = ruf();
    return ergebnis;
}

// Which number refused access (EACCES, EPERM, EROFS) becomes depends on the work: opening and renaming say 75, deleting
// and listing say 70.
int Fehlernummer(int fehler, int verweigert = 75);
[[noreturn]] void werfen(int fehler, const Text& pfad, int verweigert = 75);

// Opens without waiting (FIFOs, devices), not inherited by started processes. Follows the flags otherwise.
Deskriptor öffne(const Text& pfad, int flags, mode_t rechte = 0666);

// All of the bytes, from the descriptor's byte `stelle` on; false with errno set.
bool alles_schreiben(int fd, const char* bytes, std::size_t anzahl, std::uint64_t stelle);

// Waits until the names in a folder are on the disk. False with errno set; a file system that cannot do it counts as done.
bool Ordner_sichern(const Text& ordner);

// The folder and those above it, with mode 0700 where they are missing. False with errno set.
bool Ordner_kette_anlegen(const Text& ordner);

Zeitpunkt örtlich(std::time_t zeit);

}  // namespace tonkartei
