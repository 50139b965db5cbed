// Songs of the collection that are there twice.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "datenbank/modell.hpp"

namespace tonkartei {

// When two songs are twins. All texts are compared exactly.
enum class Zwillingsart {
    Namen = 1,       // artist and title, joined so that the border between them is not seen
    Artisten = 2,    // artist
    Titel = 3,       // title
    Datum_Größe = 4  // size in KByte and modification time of the file
};

// The numbers of all songs that have a twin, each once. Twins stand side by side in rising order, each group where its first
// song was found. `Zeiten` holds the file's time of song n at n - 1 and counts for Datum_Größe alone: a song without a file
// has no twin there. `fortschritt` hears each song's number.
std::vector<long long> doppelte_suchen(const Modell& modell, Zwillingsart Art,
                                       const std::vector<std::optional<Zeitpunkt>>& Zeiten,
                                       const std::function<void(Long Nr)>& fortschritt);

}  // namespace tonkartei
