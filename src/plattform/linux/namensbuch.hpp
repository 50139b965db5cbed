// Finds the files of a folder without regard to case, as the files that this program works with expect it.
#pragma once

#include <sys/stat.h>

#include <array>
#include <cstddef>
#include <string_view>
#include <unordered_map>

#include "grundlagen/text.hpp"
#include "plattform/linux/systemruf.hpp"

namespace tonkartei {

// Asked only when the exact path is missing. The names of the last few folders are kept, and kept true by the kernel's
// notices of what comes and goes, so that a row of 5000 missing or new files does not read the folder each time. Changes
// without notice (made by another computer on a shared folder) show in the folder's modification time.
class Namensbuch {
public:
    enum class Ergebnis { gefunden, Name_fehlt, Ordner_fehlt };

    // The name as the folder has it: exactly this one, else one that equals it but for case; of several the first in byte
    // order.
    Ergebnis suche(const Text& ordner, std::string_view name, Text& gefunden);

private:
    struct Ordner {
        bool belegt = false;
        int wache = -1;  // of the kernel's notices; -1 without
        dev_t gerät = 0;
        ino_t nummer = 0;
        struct timespec geändert {};
        bool verlässlich = false;                   // may be asked again
        bool benachrichtigt = false;                // `geändert` is older than what the notices have told
        std::unordered_multimap<Text, Text> namen;  // upper case to the folder's spelling

        void dazu(const Text& name);
        void weg(const Text& name);
    };

    void Nachrichten_lesen();
    Ordner& Platz_für(const struct stat& jetzt);
    bool einlesen(Ordner& ordner, const Text& pfad, const struct stat& jetzt);

    Deskriptor nachrichten_;
    bool ohne_Nachrichten_ = false;
    std::array<Ordner, 16> ordner_;  // a path may need one for each of its levels
    std::size_t nächster_ = 0;
};

}  // namespace tonkartei
