// What an album takes from the songs of the open collection, and what it is told as a time.
#pragma once

#include <functional>
#include <string_view>

#include "alben/album.hpp"

namespace tonkartei {

struct Bestand;

// Links each title to the song of exactly its title and artist: the last one, should there be several. A title without one
// keeps what it has. The result counts the songs found, so a title with two of them counts twice. `fortschritt` is told each
// title's number when it is done.
Long Titel_verknüpfen(Album& album, const Bestand& bestand, const std::function<void(int Titel)>& fortschritt);

// Minutes and seconds as a hand types them: "3", "3:75" (4:15), "75:00" (no time, beyond the hour), "x" (none).
Zeit Zeit_aus_Eingabe(std::string_view text);

}  // namespace tonkartei
