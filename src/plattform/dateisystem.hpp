// What the program asks of the disk. Paths are the file system's own bytes, never converted. Every failure is a Dateifehler.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "grundlagen/text.hpp"
#include "grundlagen/zeit.hpp"

namespace tonkartei {

// Separator of paths, of the system that was built for. "Trailing backslash" of a folder means this.
inline constexpr char Trenner = TONKARTEI_TRENNER;

// Bytes. No system knows longer ones, so what is longer in a file is no path.
inline constexpr std::size_t längster_Pfad = 65535;

// The folder with a separator at its end; an empty path stays empty.
Text mit_Trenner(const Text& pfad);
Text ohne_Trenner(Text pfad);
// What follows the last separator, and what stands up to it (separator included).
Text Dateiname_von(const Text& pfad);
Text Ordner_von(const Text& pfad);
// True for a path that does not depend on the current folder.
bool ist_absolut(const Text& pfad);

// What stands under a path; devices and the like are nothing to us.
enum class Pfadart { nichts, Datei, Ordner };

enum class Dateimodus {
    lesen,      // must exist
    schreiben,  // created, or emptied if it exists
    ändern,     // read and write in place, must exist
};

class Dateisystem {
public:
    using Griff = int;  // an open file, from 1; 0 is none

    struct Eintrag {
        Text Name;
        bool ist_Ordner = false;   // a link to a folder is one, too
        bool ist_Verweis = false;  // a symbolic link
    };

    virtual ~Dateisystem() = default;

    // Opens a regular file. 53 not found, 76 folder not found, 75 it is a folder or may not be accessed, 70 refused,
    // 55 it is open for writing already, or writing is asked while it is open.
    virtual Griff öffnen(const Text& pfad, Dateimodus modus) = 0;
    // Up to `ziel.size()` bytes from byte `stelle` on; fewer at the end of the file, 0 behind it.
    virtual std::size_t lesen(Griff griff, std::uint64_t stelle, std::span<char> ziel) = 0;
    // All of `bytes` to byte `stelle`. 61 disk full, 57 device.
    virtual void schreiben(Griff griff, std::uint64_t stelle, std::span<const char> bytes) = 0;
    virtual std::uint64_t Länge(Griff griff) = 0;
    // Waits until what was written is on the disk.
    virtual void sichern(Griff griff) = 0;
    virtual void schließen(Griff griff) = 0;

    virtual bool Datei_da(const Text& pfad) = 0;   // a file, not a folder
    virtual bool Ordner_da(const Text& pfad) = 0;  // with or without trailing separator; "" is none
    // Both at once.
    virtual Pfadart Art_von(const Text& pfad) {
        return Datei_da(pfad) ? Pfadart::Datei : Ordner_da(pfad) ? Pfadart::Ordner : Pfadart::nichts;
    }
    // True when both paths lead to the same existing file, by whatever links, dots and spellings.
    virtual bool gleiche_Datei(const Text& a, const Text& b) { return a == b && Datei_da(a); }
    // Bytes of a file; -1 when there is none.
    virtual std::int64_t Dateilänge(const Text& pfad) = 0;
    // Local time, whole seconds; none when there is no such file.
    virtual std::optional<Zeitpunkt> Änderungszeit(const Text& pfad) = 0;

    // 53 no source, 58 the target exists, 74 the target is on another volume, 75 one of them is open.
    virtual void umbenennen(const Text& von, const Text& nach) = 0;
    // The same onto a file that exists: at every instant its name stands for the one or for the other. 75 also when both
    // are one file, or a folder.
    virtual void ersetzen(const Text& von, const Text& nach) = 0;
    // A file. 53 not found, 70 open or refused.
    virtual void löschen(const Text& pfad) = 0;
    // 75 when it exists already or cannot be made, 76 when the parent is missing.
    virtual void Ordner_anlegen(const Text& pfad) = 0;
    // Removes an empty folder.
    virtual void Ordner_löschen(const Text& pfad) = 0;
    // Contents, by name in byte order, without "." and "..". 76 not found, 70 may not be read.
    virtual std::vector<Eintrag> auflisten(const Text& pfad) = 0;
    // A copy with the source's modification time; replaces a target that exists. A target that comes out short is removed.
    virtual void kopieren(const Text& von, const Text& nach) = 0;
    // True when both paths (the nearest existing folder of each) lie on one volume.
    virtual bool gleiches_Laufwerk(const Text& a, const Text& b) = 0;
    // Bytes free to the caller on the volume of a folder; none when it cannot be told.
    virtual std::optional<std::uint64_t> freie_Bytes(const Text& ordner) = 0;

    // The folder that bare names resolve against: a value, the process itself never changes its folder.
    virtual const Text& aktueller_Ordner() const = 0;
    virtual void aktuellen_Ordner_setzen(const Text& ordner) = 0;
};

}  // namespace tonkartei
