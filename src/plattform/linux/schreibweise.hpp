// Full paths in whatever case: where the exact one is missing, the one that the disk has instead.
#pragma once

#include <sys/types.h>

#include "grundlagen/text.hpp"
#include "plattform/linux/deskriptor.hpp"
#include "plattform/linux/namensbuch.hpp"

struct stat;

namespace tonkartei {

// Every name of a path is looked for by itself, from the front: the exact one goes first, else one that equals it but for
// case. A name once found is kept to: what is missing below it is not sought below another spelling. All calls let the path
// take on the disk's spelling, as far as the disk knows it: in front of a name that is missing its folders are spelt right.
class Schreibweise {
public:
    // 0 or the error: ENOENT when only the last name is missing, ENOTDIR when a folder is.
    int ansehen(Text& pfad, struct stat& ergebnis, bool Verweis_selbst);
    // For a name that is to be new: ENOENT when it is free, EEXIST when it is taken, ENOTDIR.
    int vergeben(Text& pfad);
    // The existing file; the second makes one where there is none. Without a descriptor errno tells the failure, as above.
    Deskriptor öffnen(Text& pfad, int flags);
    Deskriptor öffnen_oder_anlegen(Text& pfad, int flags, mode_t rechte);

private:
    enum class Fund { nichts, wie_geschrieben, anders, ohne_Ordner };
    Fund suchen(Text& pfad);

    Namensbuch namen_;
};

}  // namespace tonkartei
