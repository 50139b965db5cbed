// Run-time errors by their classic numbers. Laufzeitfehler ends the program with the error box; Dateifehler, derived from
// it, is what file work catches and turns into its own box.
#pragma once

#include <stdexcept>

#include "grundlagen/text.hpp"

namespace tonkartei {

class Laufzeitfehler : public std::runtime_error {
public:
    explicit Laufzeitfehler(int nummer);
    Laufzeitfehler(int nummer, const Text& text);

    int Nummer() const noexcept { return nummer_; }
    // German description, as the error box shows it.
    Text Beschreibung() const { return what(); }

private:
    int nummer_;
};

inline constexpr int Fehler_Überlauf = 6;
inline constexpr int Fehler_Index = 9;
inline constexpr int Fehler_Division = 11;
inline constexpr int Fehler_Typ = 13;

// File failures: 53 not found, 54 wrong mode, 55 already open, 57 device, 58 exists already, 61 disk full, 62 past the end,
// 70 refused, 74 other volume, 75 path/file access, 76 path not found.
class Dateifehler : public Laufzeitfehler {
public:
    explicit Dateifehler(int nummer, Text pfad = {}) : Laufzeitfehler(nummer), pfad_(std::move(pfad)) {}

    // The path that the failed work was about; may be empty.
    const Text& Pfad() const noexcept { return pfad_; }
    // What a box tells of it: the description, and the file as the user knows it, whatever path the work was about.
    Text mit_Pfad(const Text& Datei) const { return Beschreibung() + Text(CRCR) + anzeigbar(Datei); }

private:
    Text pfad_;
};

// The orderly end of the program, thrown out of a nested wait once the end is decided. Not an error.
struct Programmende {};

}  // namespace tonkartei
