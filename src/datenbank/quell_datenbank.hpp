// Another collection, read whole from its info file. Whatever command asks for one, this is how it is read; apart from a
// conversion of an older version nothing in its folder is changed.
#pragma once

#include <optional>

#include "datenbank/modell.hpp"

namespace tonkartei {

struct Haus;

class Quell_Datenbank {
public:
    explicit Quell_Datenbank(Haus& haus) : haus_(haus) {}

    // Whether there is a collection in that folder (trailing separator).
    bool vorhanden(const Text& Ordner) const;
    // What it holds; its file is closed again. Another version is asked about and converted as on opening, in its own folder
    // or, where that cannot be written to, in the temporary one, from which it goes at once. None: declined, or the user was
    // told of the failure. Category numbers come as they are, even those that it has no category for.
    std::optional<Bestand> lesen(const Text& Ordner);

private:
    Haus& haus_;
};

}  // namespace tonkartei
