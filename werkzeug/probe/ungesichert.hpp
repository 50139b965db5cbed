// What a disk has taken and may still lose: of every file the bytes that were there at its last syncing.
#pragma once

#include <cstdint>
#include <map>
#include <vector>

#include "plattform/dateisystem.hpp"

namespace tonkartei {

// Names are lasting at once, as are copies and the emptying of a file by its opening: only what is written through a handle
// waits for its syncing. A file is known by its full path, whatever the case.
class Ungesichert {
public:
    // Before `anzahl` bytes are written to byte `stelle` of a file that is open there.
    void schreiben(const Text& pfad, Dateisystem& dateien, Dateisystem::Griff griff, std::uint64_t stelle,
                   std::size_t anzahl);
    // The file starts anew with what it has now.
    void gesichert(const Text& pfad) { dateien_.erase(groß(pfad)); }
    // A file or a folder.
    void umbenannt(const Text& von, const Text& nach);

    // Takes everything back that has not been synced. The files must be closed.
    void verlieren(Dateisystem& dateien);

private:
    struct Stück {
        std::uint64_t stelle;
        std::vector<char> bytes;
    };
    struct Datei {
        Text pfad;
        std::uint64_t länge;       // when it was synced last
        std::vector<Stück> altes;  // what has been written over since, in order
    };
    static void zurücksetzen(const Datei& datei, Dateisystem& dateien);

    std::map<Text, Datei> dateien_;  // by the path in upper case
};

}  // namespace tonkartei
