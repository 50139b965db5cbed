// What the system tells of a file or folder.
#pragma once

#include <cstdint>
#include <string>

#include "grundlagen/zeit.hpp"

namespace tonkartei {

// Which file it is, whatever it is called.
struct Dateikennung {
    std::uint32_t Laufwerk = 0;
    std::uint64_t Nummer = 0;
    bool operator==(const Dateikennung&) const = default;
};

struct Dateiangaben {
    bool Ordner = false;
    bool Verweis = false;  // a symbolic link or a junction
    bool schreibgeschützt = false;
    std::uint64_t Länge = 0;
    std::uint64_t geändert = 0;  // 100 ns since 1601, universal time
    Dateikennung Kennung;        // of what has been opened only
};

// By the path for the wide calls: 0 or the system's error. Links are followed, or told themselves.
unsigned long ansehen(const std::wstring& pfad, Dateiangaben& ergebnis, bool Verweis_selbst = false);
// With its mark; this works on files, too, that others keep to themselves.
unsigned long genau_ansehen(const std::wstring& pfad, Dateiangaben& ergebnis, bool Verweis_selbst = false);
unsigned long ansehen(void* offene, Dateiangaben& ergebnis);

Zeitpunkt örtlich(std::uint64_t zeit);

// The folder and those above it, where they are missing.
bool Ordner_kette_anlegen(const Text& ordner);

}  // namespace tonkartei
