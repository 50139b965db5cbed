// A lock among processes: held while the object lives, gone with the process in any case.
#pragma once

#include "grundlagen/text.hpp"
#include "plattform/linux/deskriptor.hpp"

namespace tonkartei::spieler {

class Sperre {
public:
    // A file of the folder is locked. Whoever holds it does so for moments only; one that is frozen meanwhile is
    // not waited for longer than some seconds, and the work goes on without the lock.
    Sperre(const Deskriptor& ordner, const Text& name);

    // The lock file, open for reading and writing; -1 when it could not be had.
    int fd() const noexcept { return datei_.fd(); }

private:
    Deskriptor datei_;
};

}  // namespace tonkartei::spieler
