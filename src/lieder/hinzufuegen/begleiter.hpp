// What can go along with new songs: an album of them, a list file.
#pragma once

#include "lieder/hinzufuegen/neue_playlist.hpp"
#include "lieder/hinzufuegen/neues_album.hpp"

namespace tonkartei {

struct Begleiter {
    Neues_Album album;
    Neue_Playlist playlist;
};

}  // namespace tonkartei
